#include "journal/timeline.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace ng {

void Timeline::SetCursor(std::size_t cursor) { cursor_ = std::min(cursor, ends_.size()); }

void Timeline::Add(std::string_view lines) {
  ends_.resize(cursor_);
  text_.resize(ends_.empty() ? 0 : ends_.back());
  text_.append(lines);
  ends_.push_back(text_.size());
  cursor_ = ends_.size();
}

void Timeline::Clear() {
  text_.clear();
  ends_.clear();
  cursor_ = 0;
}

void Timeline::ForEach(std::size_t count, Contents& contents,
                       const std::function<bool(const Entry&)>& take) const {
  if (count == 0) return;
  EntryReader reader(contents);
  LineReader lines(std::string_view(text_).substr(0, ends_[count - 1]));
  std::string_view line;
  while (lines.Next(line)) {
    const std::optional<Entry> entry = reader.Take(line);
    if (entry && !take(*entry)) return;
  }
  if (const std::optional<Entry> last = reader.Finish()) take(*last);
}

std::size_t Timeline::Bytes() const {
  return text_.capacity() + ends_.capacity() * sizeof(std::size_t);
}

}  // namespace ng
