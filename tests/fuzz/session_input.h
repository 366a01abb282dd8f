#pragma once
// The bytes of one fuzzed session, read from the front: every choice the session makes takes the next
// byte, so that a seed can be written by hand and a mutation changes one choice at a time. Past the end
// every byte reads as 0.

#include <cstddef>
#include <cstdint>
#include <string>

namespace lw::fuzz {

class SessionInput {
public:
    SessionInput(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool exhausted() const { return at_ >= size_; }

    std::uint8_t byte() { return at_ < size_ ? data_[at_++] : 0; }

    // One of `count` choices, 0 to count - 1; a second byte widens the range past 256.
    std::size_t pick(std::size_t count) {
        if (count <= 1) return 0;
        std::size_t value = byte();
        if (count > 256) value = value << 8 | byte();
        return value % count;
    }

    bool oneIn(std::size_t count) { return pick(count) == 0; }

    // A length byte (below `maxLength` + 1), then that many bytes as they come.
    std::string bytes(std::size_t maxLength) {
        std::string out;
        for (std::size_t n = pick(maxLength + 1); n > 0 && !exhausted(); --n)
            out.push_back(static_cast<char>(byte()));
        return out;
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

}  // namespace lw::fuzz
