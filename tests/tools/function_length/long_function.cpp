// A source with one function over 80 lines: its lambda's lines count toward it.
#include <functional>
#include <string>

namespace sample {
namespace {

int shortOne() { return 1; }

}  // namespace

class Ledger {
public:
    int addUp(int first, int second) const;
};

// Eighty-one lines from its opening brace to its closing one, the lambda inside it included.
int Ledger::addUp(int first,
                  int second) const {
    int total = first + second;
    const std::string closing = "} }";  // a closing brace here does not end it }
    auto add = [&](int n) {
        total += n;
    };
    total += 1;
    total += 2;
    total += 3;
    total += 4;
    total += 5;
    total += 6;
    total += 7;
    total += 8;
    total += 9;
    total += 10;
    total += 11;
    total += 12;
    total += 13;
    total += 14;
    total += 15;
    total += 16;
    total += 17;
    total += 18;
    total += 19;
    total += 20;
    total += 21;
    total += 22;
    total += 23;
    total += 24;
    total += 25;
    total += 26;
    total += 27;
    total += 28;
    total += 29;
    total += 30;
    total += 31;
    total += 32;
    total += 33;
    total += 34;
    total += 35;
    total += 36;
    total += 37;
    total += 38;
    total += 39;
    total += 40;
    total += 41;
    total += 42;
    total += 43;
    total += 44;
    total += 45;
    total += 46;
    total += 47;
    total += 48;
    total += 49;
    total += 50;
    total += 51;
    total += 52;
    total += 53;
    total += 54;
    total += 55;
    total += 56;
    total += 57;
    total += 58;
    total += 59;
    total += 60;
    total += 61;
    total += 62;
    total += 63;
    total += 64;
    total += 65;
    total += 66;
    total += 67;
    total += 68;
    total += 69;
    total += 70;
    total += 71;
    total += 72;
    add(shortOne());
    return total + static_cast<int>(closing.size());
}

}  // namespace sample
