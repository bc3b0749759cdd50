#include "base/runtime_error.h"

namespace ng {

const char* ErrorText(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::OutOfMemory:
      return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::BadFileName:
      return "Bad file name or number";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::DeviceInputOutput:
      return "Device I/O error";
    case ErrorNumber::DiskFull:
      return "Disk full";
    case ErrorNumber::InputPastEndOfFile:
      return "Input past end of file";
    case ErrorNumber::PermissionDenied:
      return "Permission denied";
    case ErrorNumber::PathFileAccess:
      return "Path/File access error";
    case ErrorNumber::PathNotFound:
      return "Path not found";
    case ErrorNumber::Cancelled:
      return "Cancel was selected.";
  }
  return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(ErrorNumber number, const std::string& detail)
    : number_(number), text_(ErrorText(number)) {
  if (!detail.empty()) text_ += "\r\n" + detail;
}

void ThrowOverflow() { throw RuntimeError(ErrorNumber::Overflow); }

void ThrowSubscript() { throw RuntimeError(ErrorNumber::SubscriptOutOfRange); }

}  // namespace ng
