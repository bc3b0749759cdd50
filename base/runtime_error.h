#pragma once

#include <exception>
#include <string>

namespace ng {

/// The program's own numbers for the runtime errors that a command can end with.
enum class ErrorNumber {
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  TypeMismatch = 13,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceInputOutput = 57,
  DiskFull = 61,
  InputPastEndOfFile = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  /// The file dialog was cancelled where a command cannot go on without a file.
  Cancelled = 32755,
};

/// The text of the error `number`, as the message box shows it ("Overflow").
const char* ErrorText(ErrorNumber number);

/// Ends the command that runs, from wherever it is; the session's door shows the text. What the
/// command had changed before stays. A refusal by a rule of the game is not a runtime error: it is
/// a message and a return.
class RuntimeError : public std::exception {
 public:
  /// `detail`, when given, is shown on a line of its own below the error's own text.
  explicit RuntimeError(ErrorNumber number, const std::string& detail = {});

  ErrorNumber Number() const { return number_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  ErrorNumber number_;
  std::string text_;
};

/// Throws "Overflow". Kept out of line so that the checked arithmetic stays small where it is used.
[[noreturn]] void ThrowOverflow();

/// Throws "Subscript out of range".
[[noreturn]] void ThrowSubscript();

}  // namespace ng
