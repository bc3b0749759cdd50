#include "journal/kept_fights.h"

#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"

namespace ng {
namespace {

/// Without seconds and what tells two of one second apart.
constexpr std::size_t kMinuteLength = 16;
constexpr std::size_t kHourPlace = 11;

std::string Stem(const std::string& name) { return name.substr(0, name.rfind('.')); }

/// The moment in a journal's name, to the minute.
std::string WhenOf(const std::string& name) {
  std::string when = name.substr(0, kMinuteLength);
  if (when.size() > kHourPlace) {
    std::replace(when.begin() + kHourPlace, when.end(), '-', ':');
  }
  return when;
}

KeptFight Described(JournalStore& store, const std::string& name) {
  return {name, WhenOf(name), ReadSummary(store.Read(name)), name.ends_with(kClosedEnding),
          store.IsHeld(name)};
}

}  // namespace

std::vector<KeptFight> KeptFights(JournalStore& store) {
  std::vector<KeptFight> fights;
  for (const std::string& name : store.List()) {
    try {
      fights.push_back(Described(store, name));
    } catch (const RuntimeError&) {
      continue;
    }
  }
  std::ranges::reverse(fights);
  return fights;
}

std::optional<KeptFight> UnclosedFight(JournalStore& store) {
  std::vector<std::string> names = store.List();
  std::ranges::reverse(names);
  for (const std::string& name : names) {
    if (!name.ends_with(kOpenEnding) || store.IsHeld(name)) continue;
    try {
      return Described(store, name);
    } catch (const RuntimeError&) {
      continue;
    }
  }
  return {};
}

std::string NewJournalName(JournalStore& store, const std::string& now) {
  const std::string moment = Replaced(now, ":", "-");
  const std::vector<std::string> names = store.List();
  std::string stem = moment;
  for (int copy = 2; std::ranges::find(names, stem, Stem) != names.end(); ++copy) {
    stem = moment + "-" + std::to_string(copy);
  }
  return stem + kOpenEnding;
}

std::string ClosedName(const std::string& name) { return Stem(name) + kClosedEnding; }

std::string DeclinedName(const std::string& name) { return Stem(name) + kDeclinedEnding; }

void RemoveOldJournals(JournalStore& store, std::size_t kept) {
  const std::vector<std::string> names = store.List();
  std::size_t left = names.size();
  for (const std::string& name : names) {
    if (left <= kept) return;
    if (store.IsHeld(name)) continue;
    store.Remove(name);
    --left;
  }
}

}  // namespace ng
