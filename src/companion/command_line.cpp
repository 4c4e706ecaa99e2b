#include "companion/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <limits>
#include <utility>

#include "companion/command.h"
#include "disk/statement_failed.h"

namespace quill::companion {
namespace {

constexpr const char* kDescription =
    "Takes texts and their tags to other programs.\n"
    "\n"
    "FILE is a working copy, or any text that the window opens. Its tags stand in the list beside\n"
    "it, which has the name of the text with the last four characters cut off and .tlf put there.";

constexpr const char* kFooter =
    "\"quilltags COMMAND --help\" tells the options of a command.\n"
    "\n"
    "Exit codes: 0 done, nothing found amiss; 1 done, with findings, or with damaged lines left\n"
    "out; 2 a wrong call, or a file that could not be read or written.";

void AddFiles(CLI::App& app, const Command& command, Options& options) {
  CLI::Option* files = app.add_option("FILE", options.files, "the text")->type_name("")->required();
  if ((command.takes & Command::kManyFiles) != 0) {
    files->description("the texts");
  } else {
    files->expected(1);
  }
}

// To the parser, a path in brackets is a list of paths, unless it is preceded by something that no
// argument can hold.
void ShieldBrackets(std::vector<std::string>& arguments) {
  for (std::string& argument : arguments) {
    if (argument.starts_with('[') && argument.ends_with(']')) argument.insert(0, 1, '\0');
  }
}

void TakeShieldOff(std::string& path) {
  if (path.starts_with('\0')) path.erase(0, 1);
}

void TakeShieldsOff(Options& options) {
  for (std::string& path : options.files) TakeShieldOff(path);
  for (std::string& path : options.lists) TakeShieldOff(path);
  TakeShieldOff(options.output);
}

void AddOutput(CLI::App& app, const Command& command, Options& options) {
  const bool needed = (command.takes & Command::kNeedsOutput) != 0;
  app.add_option("-o,--output", options.output,
                 needed ? "where to write; - for standard output"
                        : "where to write, standard output unless told (-)")
      ->type_name("PATH")
      ->required(needed);
  app.add_flag("--force", options.force, "replace an output that exists");
}

void AddLists(CLI::App& app, const Command& command, Options& options) {
  if ((command.takes & (Command::kLists | Command::kManyLists)) == 0) return;
  const bool many = (command.takes & Command::kManyLists) != 0;
  app.add_option("--tags", options.lists,
                 many ? "the tag list of the one FILE; again for a second reader's"
                      : "the tag list of FILE")
      ->type_name("LIST")
      ->allow_extra_args(false)
      ->expected(1, many ? std::numeric_limits<int>::max() : 1);
}

void AddOthers(CLI::App& app, const Command& command, Options& options) {
  const auto takes = [&](Command::Takes what) { return (command.takes & what) != 0; };
  if (takes(Command::kCsv)) app.add_flag("--csv", options.csv, "a table for programs");
  if (takes(Command::kTo)) {
    app.add_option("--to", options.to,
                   "csv: one table; jsonld, xmi: a file for each text in the folder named with -o")
        ->required()
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"csv", "jsonld", "xmi"}));
  }
  if (takes(Command::kWidth)) {
    app.add_option("--width", options.width, "characters on either side, 40 unless told")
        ->type_name("N")
        ->check(CLI::Range(0, std::numeric_limits<int>::max()));
  }
  if (takes(Command::kBy)) {
    app.add_option("--by", options.by, "what tells the readers apart: user, session or file")
        ->required()
        ->type_name("FIELD")
        ->check(CLI::IsMember({"user", "session", "file"}));
    app.add_option("--match", options.match, "exact (the default) or overlap: which spans pair")
        ->type_name("HOW")
        ->check(CLI::IsMember({"exact", "overlap"}));
  }
}

CLI::App* Add(CLI::App& program, const Command& command, Options& options) {
  CLI::App* app = program.add_subcommand(command.name, command.summary);
  AddFiles(*app, command, options);
  AddLists(*app, command, options);
  AddOthers(*app, command, options);
  AddOutput(*app, command, options);
  return app;
}

bool TakesValue(const std::string& argument) {
  static const std::vector<std::string> kOptions = {"-o",      "--output", "--tags", "--to",
                                                    "--width", "--by",     "--match"};
  return std::find(kOptions.begin(), kOptions.end(), argument) != kOptions.end();
}

// Moves the command before the options that precede it.
void PutCommandFirst(std::vector<std::string>& arguments) {
  auto at = arguments.begin();
  while (at != arguments.end() && at->size() > 1 && at->front() == '-' && *at != "--") {
    const bool valueFollows = TakesValue(*at) && at + 1 != arguments.end();
    at += valueFollows ? 2 : 1;
  }
  if (at != arguments.end()) std::rotate(arguments.begin(), at, at + 1);
}

bool IsCommand(const std::string& name) {
  const std::vector<Command>& all = Commands();
  return std::any_of(all.begin(), all.end(),
                     [&](const Command& command) { return command.name == name; });
}

int Refuse(const std::string& why, std::ostream& err) {
  err << "quilltags: " << why << "\nTry \"quilltags --help\".\n";
  return Console::kFailure;
}

int Run(const Command& command, const Options& options, std::ostream& out, std::ostream& err) {
  Console console(out, err);
  try {
    if (!options.lists.empty() && options.files.size() > 1) {
      throw StatementFailed("--tags names the list of one text, and there are several");
    }
    command.run(options, console);
  } catch (const StatementFailed& failure) {
    console.Fail(failure.what());
  }
  return console.Code();
}

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, const std::string& version,
                   std::ostream& out, std::ostream& err) {
  CLI::App program(kDescription, "quilltags");
  program.get_formatter()->label("SUBCOMMAND", "COMMAND");
  program.get_formatter()->label("Subcommands", "Commands");
  program.set_version_flag("--version", "quilltags " + version, "tell the version");
  program.set_help_flag("--help", "tell how it is called");
  program.require_subcommand(1);
  Options options;
  std::vector<CLI::App*> apps;
  for (const Command& command : Commands()) apps.push_back(Add(program, command, options));
  program.footer(kFooter);
  if (arguments.empty()) {
    err << program.help();
    return Console::kFailure;
  }
  ShieldBrackets(arguments);
  PutCommandFirst(arguments);
  if (!arguments.front().starts_with('-') && !IsCommand(arguments.front())) {
    return Refuse(arguments.front() + " is no command", err);
  }
  std::reverse(arguments.begin(), arguments.end());
  try {
    program.parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) return program.exit(error, out, err);
    return Refuse(error.what(), err);
  }
  TakeShieldsOff(options);
  for (std::size_t i = 0; i < apps.size(); ++i) {
    if (apps[i]->parsed()) return Run(Commands()[i], options, out, err);
  }
  return Console::kFailure;
}

}  // namespace quill::companion
