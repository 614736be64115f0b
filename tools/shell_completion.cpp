#include "tools/shell_completion.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"

namespace quillon {
namespace {

// The completions for a kind of value.
struct ValueKind {
  std::string_view Name;  // its name in the help
  const char* Kind;  // its name in the scripts for bash and zsh
  const char* FishValues;  // what fish offers, including options of "complete"
};

constexpr std::array kValueKinds = {
    ValueKind{"NAME", "ranges", "-x -a '(__quillon_cli_ranges)'"},
    ValueKind{"LABEL", "hands", "-x -a '(__quillon_cli_hands)'"},
    ValueKind{"DIR", "folders", "-x -a '(__fish_complete_directories)'"},
    ValueKind{"FILE", "files", "-r -F"},
};

const ValueKind* KindOf(const OptionText& option) {
  const auto* const row = std::ranges::find(kValueKinds, option.Value, &ValueKind::Name);
  return row == kValueKinds.end() ? nullptr : row;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words)
    text.append(text.empty() ? "" : " ").append(word);
  return text;
}

std::string HandLabels() {
  std::vector<std::string> labels;
  for (std::int16_t index = 0; index < kHandClassCount; ++index)
    labels.emplace_back(HandLabel(index));
  return Joined(labels);
}

// A text in single quotes for bash and zsh, with "'" as '\''.
std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\'') quoted += "'\\'";
    quoted += c;
  }
  return quoted + "'";
}

// ---- bash and zsh, whose scripts have the same tables

std::string CommandCases(const std::vector<const CommandText*>& commands) {
  std::string cases;
  for (const CommandText* command : commands) {
    if (!command->Path.empty()) cases.append(cases.empty() ? "" : "|").append(Quoted(command->Path));
  }
  return cases;
}

// A line for each option with a value: what its values are.
std::string ValueCases(const std::vector<const CommandText*>& commands) {
  std::string cases;
  for (const CommandText* command : commands) {
    for (const OptionText& option : command->Options) {
      if (option.LongName.empty() || option.Value.empty()) continue;
      const ValueKind* const kind = KindOf(option);
      cases += "        " + Quoted(command->Path + " " + option.LongName) + ") kind=" + (kind ? kind->Kind : "words");
      if (!option.Choices.empty()) cases += " values=" + Quoted(Joined(option.Choices));
      if (option.Many) cases += " many=1";
      cases += " ;;\n";
    }
  }
  return cases;
}

// A line for each command: the words that may follow it.
std::string WordCases(const std::vector<const CommandText*>& commands) {
  std::string cases;
  for (const CommandText* command : commands) {
    std::vector<std::string> words;
    std::vector<std::string> options;
    std::string kind = "words";
    for (const CommandText& inner : command->Commands)
      words.push_back(inner.Name());
    for (const OptionText& option : command->Options) {
      if (!option.LongName.empty()) options.push_back(option.LongName);
      if (option.LongName.empty() && KindOf(option) != nullptr) kind = KindOf(option)->Kind;
    }
    if (command->Path == "help") words = {"$commands"};
    cases += "        " + Quoted(command->Path) + ") kind=" + kind + " values=\"" + Joined(words) +
             "\" options=" + Quoted(Joined(options)) + " ;;\n";
  }
  return cases;
}

std::string CommandNames(const CommandText& root) {
  std::vector<std::string> names;
  for (const CommandText& command : root.Commands)
    names.push_back(command.Name());
  return Joined(names);
}

// Finds the command before the cursor, and what may follow: `kind`, `values` and `options`. `words` counts from
// `first`, and `at` is the index of the cursor's word.
std::string FindWhatComes(const CommandText& root, const char* isOption) {
  const std::vector<const CommandText*> commands = AllCommands(root);
  return "    local commands=" + Quoted(CommandNames(root)) + "\n" +
         "    local word cmd= next= option= many= kind= values= options=\n"
         "    local -i i place=0\n"
         "    for ((i = first; i < at; i++)); do\n"
         "        word=${line[i]}\n"
         "        next=\"${cmd:+$cmd }$word\"\n"
         "        case $next in\n"
         "        " +
         CommandCases(commands) +
         ") cmd=$next ;;\n"
         "        esac\n"
         "        if [[ $word == " +
         isOption +
         " ]]; then option=$word place=i; fi\n"
         "    done\n"
         "    case \"$cmd $option\" in\n" +
         ValueCases(commands) +
         "    esac\n"
         "    if [[ -z $kind || ( place -ne at-1 && -z $many ) || $current == -* ]]; then\n"
         "        case $cmd in\n" +
         WordCases(commands) +
         "        esac\n"
         "    fi\n";
}

std::string BashCompletion(const CommandText& root) {
  return "# bash completion for quillon-cli, made by \"quillon-cli generate bash\"\n"
         "_quillon_cli() {\n"
         "    local current=${COMP_WORDS[COMP_CWORD]} name\n"
         "    local -a line=(\"${COMP_WORDS[@]}\")\n"
         "    local -i first=1 at=COMP_CWORD\n"
         "    # bash makes three words of --format=csv\n"
         "    if [[ $current == = ]]; then current=\n"
         "    elif ((at > 1)) && [[ ${line[at-1]} == = ]]; then at=at-1; fi\n" +
         FindWhatComes(root, "--*") +
         "    COMPREPLY=()\n"
         "    if [[ $current == -* ]]; then values=$options kind=words; fi\n"
         "    case $kind in\n"
         "    ranges)\n"
         "        # what is typed, without the quotes of the shell\n"
         "        current=${current#[\\\"\\']}\n"
         "        current=${current//\\\\/}\n"
         "        while IFS= read -r name; do\n"
         "            if [[ $name == \"$current\"* ]]; then COMPREPLY+=(\"$name\"); fi\n"
         "        done < <(\"${line[0]}\" ranges 2>/dev/null | cut -f 1)\n"
         "        compopt -o filenames 2>/dev/null\n"
         "        ;;\n"
         "    hands) mapfile -t COMPREPLY < <(compgen -W " +
         Quoted(HandLabels()) +
         " -- \"$current\") ;;\n"
         "    folders) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -d -- \"$current\") ;;\n"
         "    files) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- \"$current\") ;;\n"
         "    words) mapfile -t COMPREPLY < <(compgen -W \"$values\" -- \"$current\") ;;\n"
         "    esac\n"
         "}\n"
         "complete -F _quillon_cli quillon-cli\n";
}

std::string ZshCompletion(const CommandText& root) {
  return "#compdef quillon-cli\n"
         "# zsh completion for quillon-cli, made by \"quillon-cli generate zsh\"\n"
         "_quillon_cli() {\n"
         "    local current=$PREFIX\n"
         "    local -a line=(\"${(@Q)words}\")\n"
         "    local -i first=2 at=CURRENT\n" +
         FindWhatComes(root, "--*") +
         "    if [[ $current == -* ]]; then values=$options kind=words; fi\n"
         "    case $kind in\n"
         "    ranges) compadd -- ${(f)\"$(\"${line[1]}\" ranges 2>/dev/null | cut -f 1)\"} ;;\n"
         "    hands) compadd -- " +
         HandLabels() +
         " ;;\n"
         "    folders) _files -/ ;;\n"
         "    files) _files ;;\n"
         "    words) compadd -- ${=values} ;;\n"
         "    esac\n"
         "}\n"
         "if [[ $funcstack[1] == _quillon-cli ]]; then _quillon_cli \"$@\"; else compdef _quillon_cli quillon-cli; "
         "fi\n";
}

// ---- fish

// In fish's single quotes "\" and "'" are escaped by "\".
std::string FishQuoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\'' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "'";
}

std::string FishStart(const CommandText& command) {
  return "complete -c quillon-cli -n " + FishQuoted("__quillon_cli_at " + FishQuoted(command.Path));
}

std::string FishValues(const OptionText& option) {
  if (!option.Choices.empty()) return " -x -a " + FishQuoted(Joined(option.Choices));
  if (const ValueKind* const kind = KindOf(option)) return std::string(" ") + kind->FishValues;
  return option.Value.empty() ? "" : " -x";
}

std::string FishLines(const CommandText& command) {
  std::string script;
  for (const CommandText& inner : command.Commands) {
    script += FishStart(command) + " -a " + inner.Name() + " -d " + FishQuoted(inner.Description) + "\n";
  }
  for (const OptionText& option : command.Options) {
    const std::string name = option.LongName.empty() ? "" : " -l " + option.LongName.substr(2);
    script += FishStart(command) + name + FishValues(option);
    script += option.LongName.empty() ? "\n" : " -d " + FishQuoted(option.Description) + "\n";
    if (option.Many && !name.empty())
      script += "complete -c quillon-cli -n " +
                FishQuoted("__quillon_cli_in " + FishQuoted(command.Path) + " " + option.LongName) +
                FishValues(option) + "\n";
  }
  return script;
}

std::string FishCompletion(const CommandText& root) {
  const std::vector<const CommandText*> commands = AllCommands(root);
  std::vector<std::string> paths;
  paths.reserve(commands.size());
  for (const CommandText* command : commands)
    paths.push_back(FishQuoted(command->Path));
  std::string script =
      "# fish completion for quillon-cli, made by \"quillon-cli generate fish\"\n"
      "# Whether the words before the cursor ask for the command.\n"
      "function __quillon_cli_at\n"
      "    set -l cmd\n"
      "    for word in (commandline -opc)[2..-1]\n"
      "        if contains -- (string join -- ' ' $cmd $word) " +
      Joined(paths) +
      "\n"
      "            set -a cmd $word\n"
      "        end\n"
      "    end\n"
      "    test \"$cmd\" = \"$argv[1]\"\n"
      "end\n"
      "# Whether they also end with values of the option.\n"
      "function __quillon_cli_in\n"
      "    set -l options (string match -- '--*' (commandline -opc))\n"
      "    __quillon_cli_at $argv[1]; and test \"$options[-1]\" = $argv[2]\n"
      "end\n"
      "function __quillon_cli_ranges\n"
      "    quillon-cli ranges 2>/dev/null | string replace -r '\\t.*' ''\n"
      "end\n"
      "function __quillon_cli_hands\n"
      "    string split ' ' " +
      FishQuoted(HandLabels()) +
      "\n"
      "end\n"
      "complete -c quillon-cli -f\n"
      "complete -c quillon-cli -n '__quillon_cli_at help' -a " +
      FishQuoted(CommandNames(root)) + "\n";
  for (const CommandText* command : commands)
    script += FishLines(*command);
  return script;
}

}  // namespace

const std::array<CompletionShell, 3> kCompletionShells = {{
    {"bash", BashCompletion},
    {"zsh", ZshCompletion},
    {"fish", FishCompletion},
}};

}  // namespace quillon
