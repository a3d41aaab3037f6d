// A fixed row of things that go by number.
#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace tessarine
{

/// `Count` values with the numbers from `First` on. A number outside is a fault of the caller and never
/// reaches memory: std::out_of_range.
template <class Value, int Count, int First = 0> class Numbered
{
public:
    Numbered() : values_() {}

    template <class Number> Value& operator[](Number number) { return values_[Place(number)]; }
    template <class Number> const Value& operator[](Number number) const
    {
        return values_[Place(number)];
    }

    static constexpr bool Has(int number) { return number >= First && number < First + Count; }

    auto begin() { return values_.begin(); }
    auto end() { return values_.end(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

    bool operator==(const Numbered&) const = default;

private:
    template <class Number> static std::size_t Place(Number number)
    {
        if (std::cmp_less(number, First) || std::cmp_greater_equal(number, First + Count)) {
            throw std::out_of_range("a number that nothing goes by");
        }
        return static_cast<std::size_t>(number) - First;
    }

    std::array<Value, Count> values_;
};

} // namespace tessarine
