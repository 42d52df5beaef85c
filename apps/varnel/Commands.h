#ifndef VARNEL_APPS_VARNEL_COMMANDS_H
#define VARNEL_APPS_VARNEL_COMMANDS_H

#include <string>

/// The subcommands. Each answers the exit code of the program; what ends one early is thrown and becomes one
/// line on standard error.
namespace varnel::tool {

/// Clean, something found, or no document that could be read or written.
enum ExitCode : int { Clean = 0, Findings = 1, Failed = 2 };

int show(const std::string &path, bool json);
int check(const std::string &path);
/// An empty target means in place.
int rewrite(const std::string &path, const std::string &target, bool verbose);

}  // namespace varnel::tool

#endif
