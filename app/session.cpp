#include "app/session.h"

#include <stdexcept>
#include <utility>

#include "app/commands.h"
#include "base/runtime_error.h"

namespace ng {

Session::Session(Environment outside)
    : environment(std::move(outside)),
      loader(environment.files, environment.settings.NG3Dir),
      options(environment.files, environment.location, environment.settings),
      main(environment, loader, options) {}

void Session::Do(const Act& act) {
  const Command* command = FindCommand(act.control);
  if (command == nullptr) throw std::invalid_argument("no command is named " + act.control);
  // A command of the menus clears what an earlier one said.
  if (command->menu != Menu::None) main.statusMessage = "Ready";
  try {
    command->run(*this, act);
  } catch (const RuntimeError& error) {
    environment.prompts.Message(error.what());
  }
  main.ngdr.FollowPool();
}

}  // namespace ng
