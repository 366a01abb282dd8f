"""Realistic values for the fields of a form, each of a form its own.

A field's kind comes from what the program says of it: its type (the Tag), whether it holds several
lines, and for fields of no type the caption of its box (the nearest label above it, or to its left).
The n-th value of a kind differs from every other value of that kind that a form can hold.
"""
import re
import zlib

FIRST_NAMES = ["MARGARET", "DESMOND", "LUCIA", "THEODORE", "PRIYA", "ANTOINE", "SOFIA", "WILLIAM",
               "GRACE", "EZEKIEL", "HANNAH", "RAFAEL", "NADIA", "CORNELIUS", "YOLANDA", "BENEDICT"]
LAST_NAMES = ["OKONKWO-BRANDT", "FAIRWEATHER", "TERRAZAS", "BRANNIGAN", "VENKATARAMAN", "DUCHARME",
              "MAKAROVA", "OYELARAN", "NAKAMURA-LOPEZ", "HARTWELL", "LINDQVIST", "ABERNATHY",
              "CASTELLANOS", "WOJCIECHOWSKI", "PEMBERTON", "ACHTERBERG", "MONTGOMERY"]
STREET_NAMES = ["MAGNOLIA RIDGE DRIVE", "CANAL STREET", "NORTH LINCOLN AVENUE", "OLD MILL ROAD",
                "SOUTH BROADWAY", "LAKESHORE BOULEVARD", "PEACHTREE LANE", "HARBOR VIEW TERRACE",
                "WEST 38TH STREET", "CEDAR HOLLOW COURT", "RIVERBEND PARKWAY"]
CITIES = ["NEW ORLEANS, LA 70130", "SPRINGFIELD, IL 62704-1187", "TUCSON, AZ 85719", "ALBANY, NY 12203",
          "EL PASO, TX 79912", "DAYTON, OH 45402-3310", "SAVANNAH, GA 31401", "SPOKANE, WA 99201",
          "BOULDER, CO 80302", "DULUTH, MN 55802", "ASHEVILLE, NC 28801", "FRESNO, CA 93721-0042",
          "MOBILE, AL 36602", "BANGOR, ME 04401"]
STATES = ["LA", "IL", "AZ", "NY", "TX", "OH", "GA", "WA", "CO", "MN", "NC", "CA", "AL", "ME"]
COMPANIES = ["GULF COAST MARINE SUPPLY, INC.", "BRIGHTWATER REGIONAL MEDICAL GROUP", "FIRST PRAIRIE SAVINGS BANK",
             "CRESCENT CITY CREDIT UNION", "NORTHLAND TIMBER PARTNERS LP", "SUMMIT RIDGE INVESTMENT TRUST",
             "PELICAN BAY CASINO AND RESORT", "TRI-COUNTY STUDENT LOAN SERVICES", "HIGH DESERT HEALTH PLAN",
             "MERIDIAN STATE UNIVERSITY", "LAKEVIEW ORTHOPEDIC ASSOCIATES", "BLUE HERON BROKERAGE LLC"]
BANKS = ["FIRST PRAIRIE SAVINGS BANK", "CRESCENT CITY CREDIT UNION", "HARBORVIEW NATIONAL BANK",
         "MIDLANDS FARMERS BANK", "SUMMIT TRUST COMPANY"]
LOCALITIES = ["ORLEANS PARISH", "SANGAMON COUNTY", "CITY OF DAYTON", "PIMA COUNTY", "CITY OF ALBANY",
              "DULUTH CITY", "BUNCOMBE COUNTY"]
COUNTRIES = ["CANADA", "MEXICO", "UNITED KINGDOM", "JAPAN", "GERMANY", "AUSTRALIA"]
PROPERTIES = ["100 SH NORTHWIND TRADERS", "250 SH BLUE HERON FUND CL A", "40 SH PELICAN ENERGY CORP",
              "1,000 SH CRESCENT UTILITIES", "12 SH MERIDIAN BIOTECH"]
# Notes of several lines, by a word of the box's caption; the last is for any other box.
NOTES = [
    ("debt", [["CREDIT CARD BALANCE", "ACCOUNT ENDING 4471"], ["PERSONAL LOAN", "ORIGINATED 03/2019"]]),
    ("property", [["2019 FORD F-150 PICKUP", "VIN 1FTEW1EP5KFA00213"], ["VACANT LOT 14, BLOCK 7",
                  "PARISH OF ST TAMMANY"]]),
    ("box", [["BENEFITS REPAID TO SSA", "IN 2025: 1,120.00"], ["OVERPAYMENT WITHHELD", "FROM MARCH BENEFIT"]]),
    ("other", [["REAL ESTATE TAXES PAID", "3,412.88"], ["HOMEOWNERS INSURANCE", "1,906.00"]]),
    ("", [["SEE ATTACHED STATEMENT"], ["REVISED 02/14/2025"]]),
]
WAGERS = ["SLOT MACHINE JACKPOT", "KENO", "POKER TOURNAMENT", "HORSE RACE TRIFECTA", "BINGO"]
W2_CODES = ["D", "DD", "W", "E", "C", "AA", "G", "P", "V", "Y", "BB", "EE"]
LETTER_CODES = ["A", "B", "C", "D", "E", "F", "G", "H", "J", "K", "L", "M"]
DISTRIBUTION_CODES = ["7", "G", "1", "2", "4", "B", "7D", "H"]
OFFER_CODES = ["1A", "1B", "1C", "1D", "1E", "1F", "1G", "1H", "1J", "1K", "1L", "1M", "1N", "1O", "1P"]
SAFE_HARBOR_CODES = ["2A", "2B", "2C", "2D", "2E", "2F", "2G", "2H", "2I", "2J", "2K", "2L", "2M", "2N"]


def person(n):
    return f"{FIRST_NAMES[n % len(FIRST_NAMES)]} {chr(65 + (n * 5) % 26)} {LAST_NAMES[(n * 7) % len(LAST_NAMES)]}"


def street(n):
    return f"{1200 + n * 367} {STREET_NAMES[n % len(STREET_NAMES)]}"


def city(n):
    return CITIES[n % len(CITIES)]


def phone(n):
    return f"({202 + (n * 37) % 700}) 555-01{n % 100:02d}"


def money(n, negative=False):
    # Each amount of a run of eight is less than half the one before, so that what a form takes off an
    # amount (the deductions from a benefit) stays below it; the runs differ in their dollars and cents.
    dollars = round(61000 * 0.45 ** (n % 8)) + (n // 8) * 1379 + (n * 7) % 97
    cents = (n * 37 + 11) % 100
    sign = "-" if negative and n % 2 else ""
    return f"{sign}{dollars}.{cents:02d}"


def ssn(n):
    # Every third number is an ITIN (a 9 first and a group of 70 to 88), so that the cards show both.
    serial = 1000 + ((n + 7) * 1733) % 9000
    if n % 3 == 2:
        return f"9{(n * 13 + 12) % 100:02d}{70 + n % 19}{serial:04d}"
    return f"{223 + (n * 37) % 400:03d}{14 + (n * 11) % 85:02d}{serial:04d}"


def ein(n):
    prefixes = ["91", "94", "36", "13", "27", "84", "45", "58"]
    return f"{prefixes[n % len(prefixes)]}{1234567 + (n * 7331) % 8000000:07d}"


def date_in(year, n):
    return f"{n % 12 + 1:02d}/{(n * 11) % 28 + 1:02d}/{year}"


def lines_that_fit(lines, height):
    """As many lines as the box shows: about 200 twips a line of the forms' 8-point faces."""
    return lines[:max(1, min(len(lines), height // 200))]


def block(kind, n, height):
    if kind == "address":
        lines = [street(n), city(n)]
    elif kind in ("issuer", "bank"):
        # Payers live elsewhere than the people they pay, and answer another telephone.
        names = BANKS if kind == "bank" else COMPANIES
        lines = [names[n % len(names)], street(n + 5), city(n + 7), "TEL " + phone(n + 40)]
    else:
        lines = [person(n), street(n), city(n)]
        if n % 2:
            lines.insert(1, f"APT {n % 30 + 1}{'ABCD'[n % 4]}")
    return "\r\n".join(lines_that_fit(lines, height))


OTHER_ITEMS = ["CA SDI", "UNION DUES", "NJ FLI", "HEALTH PREMIUMS", "TUITION ASSISTANCE", "RR TIER 1"]
ORIGIN_CODES = ["A", "B", "C", "D", "E", "F", "G"]
ENTITY_TYPES = ["INDIVIDUAL", "S CORPORATION", "ESTATE", "GRANTOR TRUST", "PARTNERSHIP"]
RELATIONSHIPS = ["DAUGHTER", "SON", "MOTHER", "NEPHEW", "FOSTER CHILD", "GRANDSON", "FATHER-IN-LAW", "NIECE"]
TRACKS = ["BELMONT PARK", "CHURCHILL DOWNS", "SANTA ANITA", "PIMLICO", "KEENELAND"]

# What a field of no type holds, by words of its box's caption, the first rule that matches.
CAPTION_RULES = [
    ("relationship", ["relationship", "other information"]),
    ("phone", ["telephone", "phone"]),
    ("street", ["street address"]),
    ("city", ["city or town"]),
    ("state-id", ["state identification", "state id", "state no", "state/payer", "payer's state"]),
    ("locality", ["locality"]),
    ("state", ["state"]),
    ("claim", ["claim number"]),
    ("account", ["account number", "acct", "claim no", "policy number", "service provider"]),
    ("control", ["control number"]),
    ("cusip", ["cusip"]),
    ("routing", ["rtn", "routing"]),
    ("country", ["country"]),
    ("origin", ["letter identifying"]),
    ("month", ["month"]),
    ("property", ["description of property"]),
    ("distribution", ["distribution code", "distribution code(s)"]),
    ("mcc", ["merchant category"]),
    ("count", ["number of"]),
    ("letter", ["event code", "checkbox on form", "code"]),
    ("wager", ["type of wager"]),
    ("transaction", ["transaction"]),
    ("race", ["race"]),
    ("cashier", ["cashier"]),
    ("window", ["window"]),
    ("picture", ["picture"]),
    ("percent", ["percentage"]),
    ("amount", ["nonqualified plans", "transactions"]),
    ("entity", ["type of entity"]),
    ("center", ["irs center"]),
    ("ident", ["identification no"]),
    ("person", ["name"]),
    ("other", ["other"]),
]


def caption_kind(caption):
    c = " ".join(caption.lower().split())
    if c in ("code", "code(s)"):
        return "w2-code"
    for kind, words in CAPTION_RULES:
        if any(re.search(r"(?<![a-z])" + re.escape(word) + r"(?![a-z])", c) for word in words):
            return kind
    return ""


class Values:
    """The values of one form: each kind of value counts on by itself, so no two of a kind are alike."""

    def __init__(self, form):
        self.form = form
        # Each form starts its people and payers elsewhere in the lists, so the gallery's forms differ.
        start = zlib.crc32(form.encode()) % 50
        self.counts = {"person": start, "company": start, "address": start}

    def number(self, kind):
        n = self.counts.get(kind, 0)
        self.counts[kind] = n + 1
        return n

    def value_for(self, field, caption):
        """The value the gallery pastes into a field, or None for a field that takes none this way.

        field: the control as the runner lists it; caption: its box's caption. K-1 code fields (from
        their list) and check-mark fields (by a click) are the driver's. The field's tip, where it has
        one, tells as much as a caption.
        """
        caption = " ".join(part for part in (caption, field["tip"]) if part)
        tag = field["tag"].split("\u00b7")[0].upper()
        if tag in ("COMPUTED", "OUT OF SCOPE", "K1", "K1HELP", "CHECKBOX"):
            return None
        return self.make(field, caption, tag, self.kind_of(field, caption, tag))

    @staticmethod
    def kind_of(field, caption, tag):
        """The kind of value, which is also what the value's number counts."""
        words = caption.lower()
        if tag in ("MONEY", "SMONEY", "AMONEY", "-MONEY"):
            return "money"
        if tag in ("DATE", "DATEX"):
            return "date"
        if "bank" in words:
            return "bank"
        if tag == "ISSUER" or (not tag and field["multiline"] and ("lender" in words or "payer" in words)):
            return "company"
        if tag == "TPNAME" or (not tag and field["multiline"] and "name" in words):
            return "person"
        if not tag and field["multiline"] and "address" in words:
            return "address"
        if not tag and field["multiline"]:
            return "lines"
        if tag:
            return tag
        kind = caption_kind(caption)
        return "money" if kind == "amount" else kind or "text"

    def make(self, field, caption, tag, kind):
        n = self.number(kind)
        multi, height = field["multiline"], field["height"]
        if kind == "money":
            amount = money(n, negative=tag == "-MONEY")
            # A box of no type keeps what it is given: the amount is written as a person writes it.
            return amount if tag else f"{float(amount):,.2f}"
        if kind == "company":
            return block("issuer", n, height) if multi else COMPANIES[n % len(COMPANIES)]
        if kind == "bank":
            return block("bank", n, height) if multi else BANKS[n % len(BANKS)]
        if kind == "person":
            return block("person", n, height) if multi else person(n)
        if kind == "address":
            return block("address", n, height)
        if kind == "lines":
            words = caption.lower()
            if "number of" in words:
                return str(2 + n % 5)
            notes = next(notes for word, notes in NOTES if word in words)
            return "\r\n".join(lines_that_fit(notes[n % len(notes)], height))
        if tag == "TIN":
            return ssn(n)
        if tag == "EIN":
            return ein(n)
        if kind == "date":
            # The papers of a person carry a birth date; a tax form dates what happened in its year.
            words = caption.lower()
            if (self.form.startswith("F") and tag == "DATE") or "birth" in words or "dob" in words:
                return date_in(1948 + (n * 7) % 55, n)
            return date_in(2025, n)
        if tag in ("YEAR", "TAXYEAR1099G"):
            return str(2024 - n)
        if tag == "PHONE":
            return phone(n)
        if tag in ("%", "#.#"):
            return f"{5 + (n * 13) % 90}.{(n * 4099) % 10000:04d}"
        if tag == "#":
            return str(2 + n * 3)
        if tag == "1095C-14":
            return OFFER_CODES[n % len(OFFER_CODES)]
        if tag == "1095C-16":
            return SAFE_HARBOR_CODES[n % len(SAFE_HARBOR_CODES)]
        if tag == "1095C-17":
            return f"{70112 + n * 3}"
        if tag == "SSMC":
            # The year's figures of the configuration, each raised by a twentieth as next year's might be.
            try:
                figure = float(field["text"].replace(",", "")) * 1.05
            except ValueError:
                return None
            return f"{figure:.2f}" if figure < 100 else f"{figure:,.2f}"
        if tag:
            return f"REF {4400 + n * 7}"
        shown = field["text"]
        if shown.isdigit():
            # A number the form shows from the start (the routing and account numbers of the check).
            return str((int(shown) + 7919 * (n + 1)) % 10 ** len(shown)).zfill(len(shown))
        state = STATES[n % len(STATES)]
        simple = {
            "phone": lambda: phone(n),
            "street": lambda: street(n),
            "city": lambda: city(n),
            "state-id": lambda: f"{state} {4100000 + n * 7331}",
            "locality": lambda: LOCALITIES[n % len(LOCALITIES)],
            "state": lambda: state,
            "account": lambda: f"{4471 + n:04d}-{((n + 1) * 8191) % 10000:04d}-{(n + 13) % 97:02d}",
            "control": lambda: f"A{n + 17:02d}-{77310 + n * 13}",
            "cusip": lambda: f"0378{33104 + n * 7}",
            "routing": lambda: f"0{65403370 + n * 1733}",
            "country": lambda: COUNTRIES[n % len(COUNTRIES)],
            "origin": lambda: ORIGIN_CODES[n % len(ORIGIN_CODES)],
            "month": lambda: f"{n % 12 + 1:02d}",
            "claim": lambda: f"A{223140000 + n * 9137}",
            "property": lambda: PROPERTIES[n % len(PROPERTIES)],
            "w2-code": lambda: W2_CODES[n % len(W2_CODES)],
            "distribution": lambda: DISTRIBUTION_CODES[n % len(DISTRIBUTION_CODES)],
            "mcc": lambda: str(5812 + n),
            "count": lambda: f"{1200 + n * 17:,}",
            "letter": lambda: LETTER_CODES[n % len(LETTER_CODES)],
            "wager": lambda: WAGERS[n % len(WAGERS)],
            "transaction": lambda: f"TXN {45127 + n * 311:07d}",
            "race": lambda: f"R{n + 3} {TRACKS[n % len(TRACKS)]}",
            "cashier": lambda: f"C-{118 + n}",
            "window": lambda: f"W-{7 + n:02d}",
            # The license's portraits are the third and the tenth of its chooser, as the gallery clicks them.
            "picture": lambda: str(3 + 7 * n),
            "relationship": lambda: RELATIONSHIPS[n % len(RELATIONSHIPS)],
            "percent": lambda: f"{40 + n % 50}",
            "entity": lambda: ENTITY_TYPES[n % len(ENTITY_TYPES)],
            "center": lambda: ["OGDEN, UT", "KANSAS CITY, MO", "AUSTIN, TX"][n % 3],
            "ident": lambda: f"DL {state} {812734 + n * 91}",
            "person": lambda: person(n),
            "other": lambda: OTHER_ITEMS[n % len(OTHER_ITEMS)],
        }
        if kind in simple:
            return simple[kind]()
        # A box whose caption says nothing known: a short code in a narrow box, a reference in a wide one.
        if field["width"] < 900:
            return f"{n % 9 + 1}{'ABCDEFGH'[n % 8]}"
        return f"REF {4400 + n * 7}-{'ABCDEFGH'[n % 8]}"
