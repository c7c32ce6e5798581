// Generates manual page and completion from the parser's table.

#include "tools/cli/manual.h"

#include <algorithm>
#include <sstream>

namespace cli {
namespace {

std::vector<const CLI::App*> CommandsOf(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) { return true; });
}

// In roff, a line must not begin with a period or an apostrophe, and a hyphen is a dash unless escaped.
std::string Roff(const std::string& text) {
    std::string roff;
    for (const char c : text) {
        const bool beginsLine = roff.empty() || roff.back() == '\n';
        if (beginsLine && (c == '.' || c == '\'')) roff += "\\&";
        if (c == '\\')
            roff += "\\e";
        else if (c == '-')
            roff += "\\-";
        else
            roff += c;
    }
    return roff;
}

// Returns "-r, --recursive", "--size TEXT", or the name of a positional argument.
std::string NamesOf(const CLI::Option& option) {
    if (option.get_positional()) return option.get_name(true);
    std::string names;
    for (const std::string& name : option.get_snames())
        names += (names.empty() ? "-" : ", -") + name;
    for (const std::string& name : option.get_lnames())
        names += (names.empty() ? "--" : ", --") + name;
    return option.get_items_expected_max() == 0 ? names : names + " " + option.get_type_name();
}

std::string Synopsis(const CLI::App& app, const CLI::App& command) {
    std::string line = ".B " + Roff(app.get_name() + " " + command.get_name()) + "\n";
    for (const CLI::Option* option : command.get_options())
        if (option->get_positional()) line += ".I " + Roff(option->get_name(true)) + "\n";
    return line + "[options]\n";
}

std::string OptionList(const CLI::App& app) {
    std::string list;
    for (const CLI::Option* option : app.get_options())
        list += ".TP\n.B " + Roff(NamesOf(*option)) + "\n" + Roff(option->get_description()) + "\n";
    return list;
}

std::string Verbatim(const std::string& text) {
    return text.empty() ? "" : ".PP\n.nf\n" + Roff(text) + "\n.fi\n";
}

std::string ManPage(const CLI::App& app, const std::string& version) {
    std::string upper = app.get_name();
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return static_cast<char>(c - 'a' + 'A'); });
    std::string page = ".TH " + upper + " 1 \"\" \"" + version + "\"\n.SH NAME\n" + app.get_name() + " \\- " +
                       Roff(app.get_description()) + "\n.SH SYNOPSIS\n";
    const std::vector<const CLI::App*> commands = CommandsOf(app);
    for (const CLI::App* command : commands)
        page += (command == commands.front() ? "" : ".br\n") + Synopsis(app, *command);
    page += ".SH OPTIONS\n" + OptionList(app) + ".SH COMMANDS\n";
    for (const CLI::App* command : commands)
        page += ".SS " + Roff(command->get_name()) + "\n" + Roff(command->get_description()) + ".\n" +
                OptionList(*command) +
                (command->get_footer() != app.get_footer() ? Verbatim(command->get_footer()) : "");
    return page + ".SH NOTES\n" + Verbatim(app.get_footer());
}

// Returns the long names of all options, and the short names of those without one.
std::string OptionNames(const CLI::App& app) {
    std::string names;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames())
            names += " --" + name;
        if (!option->get_lnames().empty()) continue;
        for (const std::string& name : option->get_snames())
            names += " -" + name;
    }
    return names;
}

std::string BashCompletion(const CLI::App& app, const CompletedWords& words) {
    const std::string function = "_" + app.get_name();
    std::string script = "# Bash completion: source this file, or install it for the package bash-completion.\n" +
                         function + "() {\n    local current=${COMP_WORDS[COMP_CWORD]} options= words= commands=\"";
    for (const CLI::App* command : CommandsOf(app))
        script += (command == CommandsOf(app).front() ? "" : " ") + command->get_name();
    script += "\"\n    case ${COMP_WORDS[1]} in\n";
    for (const CLI::App* command : CommandsOf(app)) {
        script += "        " + command->get_name() + ") options=\"" + OptionNames(*command).substr(1) + "\"";
        const auto more = words.find(command->get_name());
        if (more != words.end()) {
            script += " words=\"";
            for (const std::string& word : more->second)
                script += (&word == &more->second.front() ? "" : " ") + word;
            script += "\"";
        }
        script += " ;;\n";
    }
    return script + "        *) options=\"" + OptionNames(app).substr(1) +
           "\" ;;\n    esac\n"
           "    COMPREPLY=()\n"
           "    if [ \"$COMP_CWORD\" = 1 ]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W \"$commands $options\" -- \"$current\")\n"
           "        return\n"
           "    fi\n"
           "    case $current in\n"
           "        -*) mapfile -t COMPREPLY < <(compgen -W \"$options\" -- \"$current\") ;;\n"
           "        *) mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\"; compgen -f -- \"$current\") ;;\n"
           "    esac\n"
           "    if [ ${#COMPREPLY[@]} = 1 ] && [[ ${COMPREPLY[0]} = *= ]]; then compopt -o nospace; fi\n"
           "}\ncomplete -o filenames -F " +
           function + " " + app.get_name() + "\n";
}

// Adds an option that prints a text and ends parsing, like --version.
void AddPrinted(CLI::App& app, const char* name, const char* description, const std::function<std::string()>& text) {
    app.add_flag_callback(
        name, [text] { throw CLI::CallForVersion(text(), 0); }, description);
}

// After "--" there are no options. The parser would end the command there.
void NameFilesAfterOptions(std::vector<std::string>& arguments) {
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    if (end == arguments.end()) return;
    for (auto name = end + 1; name != arguments.end(); ++name)
        if (name->size() > 1 && name->front() == '-') name->insert(0, "./");
    arguments.erase(end);
}

} // namespace

void AddCommonOptions(CLI::App& app, const std::string& version, const CompletedWords& words) {
    app.allow_windows_style_options(false); // a path may begin with a slash
    app.require_subcommand(1);
    app.set_version_flag("--version", app.get_name() + " " + version, "Print the version and exit");
    AddPrinted(app, "--man", "Print the manual page (roff) and exit",
               [&app, version] { return ManPage(app, app.get_name() + " " + version); });
    AddPrinted(app, "--completion", "Print the completion for bash and exit",
               [&app, words] { return BashCompletion(app, words); });
}

std::string NotEmpty(const std::string& value) {
    return value.empty() ? "the value is empty" : "";
}

ParseResult Parse(CLI::App& app, std::vector<std::string> arguments) {
    ParseResult result;
    const std::string name = app.get_name() + ": ";
    if (!arguments.empty() && arguments.front().rfind('-', 0) != 0) {
        const std::vector<const CLI::App*> commands = CommandsOf(app);
        const auto isCommand = [&](const CLI::App* command) { return command->get_name() == arguments.front(); };
        if (std::none_of(commands.begin(), commands.end(), isCommand)) {
            result.error = name + "unknown command '" + arguments.front() + "'; see " + app.get_name() + " --help\n";
            return result;
        }
    }
    NameFilesAfterOptions(arguments);
    std::reverse(arguments.begin(), arguments.end()); // the order that the parser expects
    try {
        app.parse(arguments);
        result.isParsed = true;
    } catch (const CLI::ParseError& error) {
        std::ostringstream out, wrong;
        if (app.exit(error, out, wrong) != 0)
            result.error = name + wrong.str();
        else
            result.output = out.str();
    }
    return result;
}

} // namespace cli
