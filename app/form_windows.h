#pragma once

#include <span>
#include <string_view>

namespace ng {

class ControlVisitor;
class Session;

/// A window and the form behind it. Whoever paints, plays or tests all windows walks the one table
/// of these.
struct FormWindow {
  /// Object name of the window.
  const char* name;
  /// Before the names of its controls in acts and transcripts: nothing for the main window, the
  /// window's name and "." for the others.
  const char* prefix;
  /// The act of closing the window by its frame.
  const char* close;
  bool (*open)(const Session& session);
  /// Goes through every control of the window, always in the same order. Whatever the form holds,
  /// this throws nothing but for want of memory.
  void (*visit)(const Session& session, ControlVisitor& visitor);
};

/// The main window, those beside it and the modal ones.
std::span<const FormWindow> FormWindows();

/// The window of this name, which must be one of them.
const FormWindow& FindFormWindow(std::string_view name);

}  // namespace ng
