#include "notes/log_viewer.h"

#include "base/text.h"

namespace ng {

void LogViewer::Form_Load(Files& files, const std::string& path) {
  lstDisplay.clear();
  const std::string text = files.ReadWhole(path);
  LineReader lines(text);
  std::string_view line;
  while (lines.Next(line)) lstDisplay.emplace_back(line);
  open = true;
}

}  // namespace ng
