#pragma once

// What the system tells a process of itself.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// The folder of the running program's executable, whatever the characters of its name. An exception of the standard
/// library where the system does not tell.
[[nodiscard]] std::filesystem::path ExecutableFolder();

/// A number that no other process of this machine has while this one runs.
[[nodiscard]] unsigned ProcessNumber();

/// The cores that the calling thread may use, which a queueing system may have made fewer than the machine has: at
/// least 1.
[[nodiscard]] unsigned UsableCores();

/// The value of an environment variable, the empty text where it is not set.
using EnvironmentVariable = std::function<std::string(const char* name)>;

/// The same, of the process itself. For its outermost frame; what else asks is given an EnvironmentVariable, so that a
/// test can say what there is.
[[nodiscard]] std::string ProcessVariable(const char* name);

/// The arguments of `main`, without the program's name, as UTF-8 where the system knows characters.
[[nodiscard]] std::vector<std::string> ProcessArguments(int count, char** arguments);

/// The numbers that every process finds its standard streams under.
inline constexpr int kInputStream = 0;
inline constexpr int kOutputStream = 1;
inline constexpr int kErrorStream = 2;

/// Whether an open file of that number is a terminal, one that takes control sequences where the system has others too.
[[nodiscard]] bool IsTerminal(int file);

/// Whether every terminal has 24-bit colours. Where the system does not say so, a terminal's environment may.
[[nodiscard]] bool TerminalsHaveColors();

/// Makes the standard streams fit for use. What goes through them goes unchanged, and a terminal takes UTF-8 and
/// colours. One that is closed gets a file that can neither be read nor written, so that using it fails as before:
/// whatever is opened next would take its number otherwise, and be read or written as if it were the stream.
void PrepareStandardStreams();

}  // namespace quillon
