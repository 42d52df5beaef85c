// The command-line tool: shows, checks and rewrites project documents.

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <string>

#include "apps/varnel/Commands.h"
#include "apps/varnel/Document.h"

namespace {

using namespace varnel::tool;

constexpr const char *version = "varnel 0.1.0";
constexpr const char *exitCodes =
    "Exit codes: 0 clean, 1 something was found or lost, 2 no document that could be read or written.";

struct Options {
    std::string file;
    std::string target;
    bool json = false;
    bool verbose = false;
};

CLI::App *addCommand(CLI::App &app, Options &options, const char *name, const char *what,
                     const char *example) {
    CLI::App *command = app.add_subcommand(name, what);
    command->add_option("FILE", options.file, "the project document")->required();
    command->footer(std::string("Example: ") + example + "\n" + exitCodes);
    return command;
}

int run(int argc, char **argv, Options &options) {
    CLI::App app("Shows, checks and rewrites the project documents of structural models.", "varnel");
    app.set_version_flag("--version", version);
    app.require_subcommand(1);
    const char *examples[] = {"varnel show house.xml --json", "varnel check house.xml",
                              "varnel rewrite --verbose house.xml tidy.xml"};
    CLI::App *showing = addCommand(app, options, "show", "Says what a document holds.", examples[0]);
    showing->add_flag("--json", options.json, "the same as one JSON object");
    CLI::App *checking =
        addCommand(app, options, "check", "Says what is wrong with a document.", examples[1]);
    CLI::App *rewriting =
        addCommand(app, options, "rewrite", "Writes a document anew in Varnel's own layout.", examples[2]);
    rewriting->add_option("OUT", options.target, "where to write; in place without it");
    rewriting->add_flag("--verbose", options.verbose, "tell what the document loses");
    app.footer(std::string("Examples:\n  ") + examples[0] + "\n  " + examples[1] + "\n  " + examples[2] +
               "\n" + exitCodes);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &success) {  // help and version
        return app.exit(success);
    }
    if (*showing) return show(options.file, options.json);
    return *checking ? check(options.file) : rewrite(options.file, options.target, options.verbose);
}

int fail(const std::string &file, const std::string &what) {
    std::cerr << oneLine("varnel: " + (file.empty() ? what : file + ": " + what)) << '\n';
    return Failed;
}

}  // namespace

int main(int argc, char **argv) {
    Options options;
    try {
        const int code = run(argc, argv, options);
        return std::cout.flush() ? code : fail("", "the output cannot be written");
    } catch (const CLI::ParseError &error) {
        return fail("", std::string(error.what()) + "; --help tells the usage");
    } catch (const std::exception &error) {
        return fail(options.file, error.what());
    }
}
