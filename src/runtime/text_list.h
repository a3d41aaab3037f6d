// An ordered list of text, as a list box holds it, shown or hidden.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// A list that appends at its end, or, made sorted, keeps its entries in ascending order by itself
/// (letter case ignored first, then by code). Positions count from 0; a position outside the list is
/// a fault of the caller.
class TextList
{
public:
    enum class Order { AsAdded, Sorted };

    explicit TextList(Order order = Order::AsAdded) : order_(order) {}

    std::size_t Count() const { return entries_.size(); }
    bool IsEmpty() const { return entries_.empty(); }
    const std::string& At(std::size_t position) const { return entries_[position]; }
    const std::string& Front() const { return entries_.front(); }
    const std::string& Back() const { return entries_.back(); }
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

    /// Appends the text, or inserts it at its sorted place; the position that it got.
    std::size_t Add(std::string text);
    /// Adds many at once: one sort instead of one for each.
    void AddAll(std::vector<std::string> texts);
    void PushFront(std::string text);
    std::string PopFront();
    std::string PopBack();
    void RemoveAt(std::size_t position);
    void Clear() { entries_.clear(); }

    /// Position of the first entry that begins with the text, letter case ignored, over the whole
    /// list, beginning at `from` and going round; nothing if there is none. Every entry begins with
    /// the empty text.
    std::optional<std::size_t> Find(std::string_view text, std::size_t from = 0) const;

private:
    Order order_;
    std::vector<std::string> entries_;
};

} // namespace tessarine
