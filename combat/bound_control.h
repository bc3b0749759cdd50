#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <variant>

#include "base/number_text.h"
#include "tracker/fight/player_record.h"

namespace ng {

/// What a bound control shows: a text, or whether it is checked.
using BoundValue = std::variant<const std::string*, bool>;

/// A control of a panel that shows one field of the displayed record and is stored back into it: a
/// text box, or a check box that stands for 1 and 0. From a panel's rows of these,
/// `Panel::Bound()`, it is filled and stored, the window is painted, and an edit is carried out.
template <class Panel>
struct BoundControl {
  /// The control's name; the elements of a control array share it.
  const char* name;
  /// What a step of undo that edits it is called.
  const char* words;
  /// 0 for a control that stands alone.
  int elements;
  void (*show)(Panel& panel, const PlayerRecord& record);
  void (*store)(const Panel& panel, PlayerRecord& record);
  BoundValue (*shown)(const Panel& panel, std::size_t element);
  /// Puts the text into a box, or inverts a check box; null where edits have commands of their own.
  /// Overflow, with the box as it was, for a number that no field holds.
  void (*edit)(Panel& panel, std::size_t element, const std::string& text);
};

namespace bound {

inline void Show(std::string& box, const std::string& field) { box = field; }
inline void Show(std::string& box, Integer field) { box = PlainText(field); }
inline void Show(bool& checked, Integer field) { checked = field != 0; }

inline void Store(const std::string& box, std::string& field) { field = box; }
inline void Store(const std::string& box, Integer& field) { field = LenientInteger(box); }
inline void Store(bool checked, Integer& field) { field = checked ? 1 : 0; }

inline void Edit(std::string& box, const std::string& text) {
  LenientInteger(text);
  box = text;
}
inline void Edit(bool& checked, const std::string&) { checked = !checked; }

template <class Panel, class Control>
Panel PanelOf(Control Panel::*);

/// One element of a control array, or the control that stands alone.
template <class Control>
Control& ElementOf(Control& control, std::size_t) {
  return control;
}
template <class Control, std::size_t count>
Control& ElementOf(std::array<Control, count>& controls, std::size_t element) {
  return controls[element];
}
template <class Control, std::size_t count>
const Control& ElementOf(const std::array<Control, count>& controls, std::size_t element) {
  return controls[element];
}

inline BoundValue ShownBy(const std::string& box) { return &box; }
inline BoundValue ShownBy(bool checked) { return checked; }

}  // namespace bound

/// The row of a panel's control, with the field of each of its elements.
template <auto control, auto... fields>
constexpr auto Bind(const char* name, const char* words) {
  using Panel = decltype(bound::PanelOf(control));
  return BoundControl<Panel>{
      name,
      words,
      sizeof...(fields) == 1 ? 0 : static_cast<int>(sizeof...(fields)),
      [](Panel& panel, const PlayerRecord& record) {
        std::size_t element = 0;
        (bound::Show(bound::ElementOf(panel.*control, element++), record.*fields), ...);
      },
      [](const Panel& panel, PlayerRecord& record) {
        std::size_t element = 0;
        (bound::Store(bound::ElementOf(panel.*control, element++), record.*fields), ...);
      },
      [](const Panel& panel, std::size_t element) {
        return bound::ShownBy(bound::ElementOf(panel.*control, element));
      },
      [](Panel& panel, std::size_t element, const std::string& text) {
        bound::Edit(bound::ElementOf(panel.*control, element), text);
      }};
}

/// The same for a control that is worked out, or that commands of its own change.
template <auto control, auto... fields>
constexpr auto BindStored(const char* name) {
  auto row = Bind<control, fields...>(name, "");
  row.edit = nullptr;
  return row;
}

template <class Panel>
void ShowBound(Panel& panel, const PlayerRecord& record) {
  for (const auto& row : Panel::Bound()) row.show(panel, record);
}

template <class Panel>
void StoreBound(const Panel& panel, PlayerRecord& record) {
  for (const auto& row : Panel::Bound()) row.store(panel, record);
}

}  // namespace ng
