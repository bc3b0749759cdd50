#include "notes/note_file.h"

#include "app/settings/encoding.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {

std::string ReadNote(Files& files, const std::string& path) {
  const std::string text = files.ReadWhole(path);
  std::string_view line;
  if (!LineReader(text).Next(line)) throw RuntimeError(ErrorNumber::InputPastEndOfFile);
  return DecodeNG3(line);
}

void WriteNote(Files& files, const std::string& path, std::string_view note) {
  files.Replace(path, EncodeNG3(note) + "\r\n");
}

}  // namespace ng
