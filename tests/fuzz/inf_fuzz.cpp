// Fuzz target of the INF reader: any bytes may be a settings file on disk. Besides not failing, a value
// written into the text by the writer's edit must be read back as written.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "store/inf_edit.h"
#include "store/inf_lines.h"
#include "store/inf_store.h"

namespace {

std::string scratchFile;

void check(bool holds) {
    if (!holds) std::abort();
}

void put(std::string_view bytes) {
    std::FILE* f = std::fopen(scratchFile.c_str(), "wb");
    check(f != nullptr);
    check(std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size());
    check(std::fclose(f) == 0);
}

// A name taken from the input's first line, so that the reader also looks for what the file holds.
std::string nameFrom(std::string_view input) {
    std::string_view first = input.substr(0, input.find_first_of("\r\n"));
    first = first.substr(0, first.find('\0'));
    if (first.size() > 2 && first.front() == '[') first = first.substr(1, first.find(']') - 1);
    return std::string(lw::store::trimInfBlanks(first.substr(0, first.find('='))));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // A file in memory where there is one: the target writes it twice for every input.
    std::error_code ec;
    const std::filesystem::path folder = std::filesystem::is_directory("/dev/shm", ec)
                                             ? std::filesystem::path("/dev/shm")
                                             : std::filesystem::temp_directory_path();
    std::string pattern = (folder / "lw-inf-fuzz-XXXXXX").string();
    int fd = mkstemp(pattern.data());
    check(fd >= 0);
    close(fd);
    scratchFile = pattern;
    std::atexit([] { std::remove(scratchFile.c_str()); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lw::store;
    std::string_view input(reinterpret_cast<const char*>(data), size);
    put(input);

    const std::string name = nameFrom(input);
    const std::string value = readInfValue(name, name, " default ", scratchFile);
    check(value.size() < kInfValueBuffer);
    readInfValue("Fuzz", "Key", "", scratchFile);
    const std::size_t buffer = size == 0 ? 0 : static_cast<unsigned char>(input[0]) * 8;
    std::size_t used = 1;
    for (const std::string& line : readInfSection(name, scratchFile, buffer)) used += line.size() + 1;
    check(buffer < 3 || used <= buffer);
    readInfSection("Fuzz", scratchFile, 32767);

    const std::string written = "value of the fuzz";
    put(infWithValue(input, "Fuzz", "Key", written));
    check(readInfValue("Fuzz", "Key", "", scratchFile) == written);
    return 0;
}
