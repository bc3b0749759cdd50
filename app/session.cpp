#include "app/session.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "app/commands.h"
#include "base/runtime_error.h"

namespace ng {

Session::Session(Environment outside)
    : environment(std::move(outside)),
      loader(environment.files, environment.settings.NG3Dir),
      options(environment.files, environment.location, environment.settings),
      main(environment, loader, options) {}

bool Session::Do(const Act& act) {
  const Command* command = FindCommand(act.control);
  if (command == nullptr) throw std::invalid_argument("no command is named " + act.control);
  // A command of the menus clears what an earlier one said.
  if (command->menu != Menu::None) main.statusMessage = "Ready";
  const bool finished = Finish([&] { command->run(*this, act); });
  return Finish([&] { main.FollowTest(); }) && finished;
}

template <typename Work>
bool Session::Finish(Work work) {
  constexpr const char* kFault = "The command could not be finished: ";
  try {
    work();
    return true;
  } catch (const RuntimeError& error) {
    Tell("", error.what());
  } catch (const std::exception& fault) {
    Tell(kFault, fault.what());
  } catch (...) {
    Tell(kFault, "unknown fault");
  }
  return false;
}

void Session::Tell(const char* introduction, const char* fault) {
  try {
    environment.prompts.Message(std::string(introduction) + fault);
  } catch (...) {
    // Where even the telling fails, as it may when memory runs out, the fight is what has to stay.
    return;
  }
}

}  // namespace ng
