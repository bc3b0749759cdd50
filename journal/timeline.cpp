#include "journal/timeline.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace ng {

void Timeline::SetCursor(std::size_t cursor) { cursor_ = std::min(cursor, ends_.size()); }

void Timeline::Add(std::string_view lines) {
  if (cursor_ < ends_.size()) {
    ends_.resize(cursor_);
    text_.resize(ends_.empty() ? 0 : ends_.back());
    ++generation_;
  }
  text_.append(lines);
  ends_.push_back(static_cast<std::uint32_t>(text_.size()));
  cursor_ = ends_.size();
}

void Timeline::Walk(Place& place, std::size_t count,
                    const std::function<bool(const Entry&)>& take) const {
  if (count <= place.entries) return;
  const std::size_t end = ends_[count - 1];
  LineReader lines(std::string_view(text_).substr(place.offset, end - place.offset));
  place.offset = end;
  const auto hand = [&](const std::optional<Entry>& entry) {
    if (!entry) return true;
    const bool more = take(*entry);
    ++place.entries;
    return more;
  };
  std::string_view line;
  while (lines.Next(line)) {
    if (!hand(place.reader.Take(line))) return;
  }
  hand(place.reader.Finish());
}

void Timeline::ForEach(std::size_t count, Contents& contents,
                       const std::function<bool(const Entry&)>& take) const {
  Place place(contents);
  Walk(place, count, take);
}

std::size_t Timeline::Bytes() const {
  return text_.capacity() + ends_.capacity() * sizeof(ends_[0]);
}

}  // namespace ng
