#include "runtime/text_list.h"

#include <algorithm>
#include <utility>

namespace tessarine
{
namespace
{

unsigned char Folded(char c)
{
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

bool FoldedEqual(char a, char b)
{
    return Folded(a) == Folded(b);
}

bool ComesBefore(const std::string& a, const std::string& b)
{
    const auto folded = [](char x, char y) { return Folded(x) < Folded(y); };
    if (std::ranges::lexicographical_compare(a, b, folded)) {
        return true;
    }
    return !std::ranges::lexicographical_compare(b, a, folded) && a < b;
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

std::optional<std::size_t> TextList::Find(std::string_view text) const
{
    const auto begins = [text](const std::string& entry) {
        return entry.size() >= text.size() &&
               std::equal(text.begin(), text.end(), entry.begin(), FoldedEqual);
    };
    const auto found = std::ranges::find_if(entries_, begins);
    if (found == entries_.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - entries_.begin());
}

} // namespace tessarine
