#include "headless/headless_platform.h"

#include <chrono>
#include <ctime>

#include "text/cp1252.h"

namespace lw::headless {

namespace {
std::string inCodePage(const std::string& utf8) {
    // The script runner refuses unrepresentable text before it gets here; keep the bytes otherwise.
    return text::utf8ToCp1252(utf8).value_or(utf8);
}
}  // namespace

HeadlessPlatform::HeadlessPlatform(Session& session) : session_(session) {
    for (const auto& printer : session.printers) printersInCodePage_.push_back(inCodePage(printer));
}

DateTime HeadlessPlatform::now() {
    if (session_.today) return session_.today->plusMilliseconds(skippedMs_);
    std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return DateTime{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                    local.tm_hour,        local.tm_min,     local.tm_sec};
}

std::optional<std::string> HeadlessPlatform::environment(const std::string& name) {
    // The platform's ANSI call puts "?" for what the code page cannot hold.
    auto ansi = [](const std::string& utf8) {
        if (auto converted = text::utf8ToCp1252(utf8)) return *converted;
        std::string out;
        for (std::size_t i = 0; i < utf8.size();) {
            unsigned char c = static_cast<unsigned char>(utf8[i]);
            std::size_t len = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 1;
            auto piece = text::utf8ToCp1252(utf8.substr(i, len));
            out += piece ? *piece : "?";
            i += len;
        }
        return out;
    };
    if (name == "UserName") return ansi(session_.user);
    if (name == "ComputerName") return ansi(session_.computer);
    return std::nullopt;
}

std::string HeadlessPlatform::commandLine() { return inCodePage(session_.args); }

void HeadlessPlatform::activateEarlierInstance(const std::string& title) {
    *session_.out << "activate earlier instance \"" << text::cp1252ToUtf8(title) << "\"\n";
}

void HeadlessPlatform::sleep(int milliseconds) {
    skippedMs_ += milliseconds;
    *session_.out << "sleep " << milliseconds << " ms skipped\n";
}

}  // namespace lw::headless
