// Choices drawn from the bytes of a fuzzer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessarine::test
{

class Choices
{
public:
    Choices(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

    bool AreLeft() const { return at_ != end_; }

    /// A number from 0 to bound - 1; 0 when the bytes are used up.
    int operator()(int bound)
    {
        unsigned value = Next();
        if (bound > 256) {
            value = value * 256 + Next();
        }
        return static_cast<int>(value % static_cast<unsigned>(bound));
    }

    /// All that is left, as a text.
    std::string Rest()
    {
        std::string text(at_, end_);
        at_ = end_;
        return text;
    }

private:
    unsigned Next() { return AreLeft() ? *at_++ : 0U; }

    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

} // namespace tessarine::test
