#include "runtime/text_list.h"

#include "runtime/letters.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace tessarine
{
namespace
{

bool ComesBefore(const std::string& a, const std::string& b)
{
    const auto order = CompareFolded(a, b);
    return std::is_eq(order) ? a < b : std::is_lt(order);
}

} // namespace

std::size_t TextList::Add(std::string text)
{
    const auto place = order_ == Order::Sorted
                           ? std::upper_bound(entries_.begin(), entries_.end(), text, ComesBefore)
                           : entries_.end();
    const auto entry = entries_.insert(place, std::move(text));
    return static_cast<std::size_t>(entry - entries_.begin());
}

void TextList::AddAll(std::vector<std::string> texts)
{
    entries_.insert(entries_.end(), std::make_move_iterator(texts.begin()),
                    std::make_move_iterator(texts.end()));
    if (order_ == Order::Sorted) {
        std::ranges::sort(entries_, ComesBefore);
    }
}

void TextList::PushFront(std::string text)
{
    entries_.insert(entries_.begin(), std::move(text));
}

std::string TextList::PopFront()
{
    std::string text = std::move(entries_.front());
    entries_.erase(entries_.begin());
    return text;
}

std::string TextList::PopBack()
{
    std::string text = std::move(entries_.back());
    entries_.pop_back();
    return text;
}

void TextList::RemoveAt(std::size_t position)
{
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
}

std::optional<std::size_t> TextList::Find(std::string_view text, std::size_t from) const
{
    for (std::size_t step = 0; step < entries_.size(); ++step) {
        const std::size_t position = (from + step) % entries_.size();
        if (BeginsFolded(entries_[position], text)) {
            return position;
        }
    }
    return std::nullopt;
}

} // namespace tessarine
