#pragma once

// Completions of the companion's command line for bash, zsh and fish, generated from its definitions. They complete
// commands, options, formats, the names of ranges (listed when needed), labels of hands, and files.

#include <array>
#include <string>

#include "tools/command_tree.h"

namespace quillon {

/// A shell and its completion script.
struct CompletionShell {
  const char* Name;
  std::string (*Script)(const CommandText& root);
};

extern const std::array<CompletionShell, 3> kCompletionShells;

}  // namespace quillon
