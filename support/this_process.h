#pragma once

// What a process can ask the system about itself.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// The folder of the running executable, whatever its name. A standard exception if the system cannot say.
[[nodiscard]] std::filesystem::path ExecutableFolder();

/// A number unique among the machine's running processes.
[[nodiscard]] unsigned ProcessNumber();

/// The cores that the calling thread may use, which a job scheduler may have limited: at least 1.
[[nodiscard]] unsigned UsableCores();

/// The value of an environment variable; the empty text if it is not set.
using EnvironmentVariable = std::function<std::string(const char* name)>;

/// The variable of this process. For its outermost frame only; everything else is passed an EnvironmentVariable, so
/// that a test can set what it reads.
[[nodiscard]] std::string ProcessVariable(const char* name);

/// The arguments of `main`, without the program's name; UTF-8 on systems whose names are characters.
[[nodiscard]] std::vector<std::string> ProcessArguments(int count, char** arguments);

/// The numbers of the standard streams.
inline constexpr int kInputStream = 0;
inline constexpr int kOutputStream = 1;
inline constexpr int kErrorStream = 2;

/// Whether the open file is a terminal, and on Windows one that takes control sequences.
[[nodiscard]] bool IsTerminal(int file);

/// Whether every terminal has 24-bit colours. Where this is false, a terminal's environment may still say so.
[[nodiscard]] bool TerminalsHaveColors();

/// Prepares the standard streams: their bytes pass unchanged, and a terminal takes UTF-8 and colours. A closed stream
/// gets a file that can be neither read nor written, so that using it still fails; otherwise the next file opened would
/// get its number and be read or written as if it were the stream.
void PrepareStandardStreams();

}  // namespace quillon
