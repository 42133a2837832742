// SPDX-License-Identifier: MIT
#include "tools/manual/pages.h"

#include <algorithm>

namespace {

using Help = std::vector<HelpSection>;

std::string function_name(std::string const& program) {
    std::string name = "_" + program;
    std::ranges::replace(name, '-', '_');
    return name;
}

/// Between single quotes of a shell.
std::string quoted(std::string const& text) {
    std::string safe = "'";
    for (char const c : text) {
        if (c == '\'')
            safe += "'\\''";
        else
            safe += c;
    }
    return safe + "'";
}

/// For zsh's _arguments, where brackets and colons mean something.
std::string zsh_text(std::string const& text) {
    std::string safe;
    for (char const c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') safe += '\\';
        safe += c;
    }
    return safe;
}

std::string names(HelpSection const& section) {
    std::string all;
    for (HelpEntry const& entry : section.entries) {
        for (std::string const& name : entry.names) all += (all.empty() ? "" : " ") + name;
    }
    return all;
}

std::string commands(Help const& help) {
    std::string all;
    for (HelpSection const& section : help) {
        if (!section.command.empty()) all += (all.empty() ? "" : " ") + section.command;
    }
    return all;
}

std::string zsh_arguments(HelpSection const& section) {
    std::string all;
    for (HelpEntry const& entry : section.entries) {
        for (std::string const& name : entry.names) {
            std::string argument = name + "[" + zsh_text(entry.text) + "]";
            if (!entry.value.empty()) argument += ":" + zsh_text(entry.value) + ":_files";
            all += " \\\n        " + quoted(argument);
        }
    }
    return all + " \\\n        '*:file:_files'\n";
}

/// @param condition  of the command line, "" for none
std::string fish_options(std::string const& program, HelpSection const& section, std::string const& condition) {
    std::string all;
    for (HelpEntry const& entry : section.entries) {
        if (entry.names.empty()) continue;
        all += "complete -c " + program;
        if (!condition.empty()) all += " -n " + quoted(condition);
        for (std::string const& name : entry.names) {
            if (name.starts_with("--"))
                all += " -l " + name.substr(2);
            else
                all += (name.size() == 2 ? " -s " : " -o ") + name.substr(1);
        }
        if (!entry.value.empty()) all += " -r";
        all += " -d " + quoted(entry.text) + "\n";
    }
    return all;
}

} // namespace

std::string bash_completion(std::string const& program, Help const& help) {
    std::string const name = function_name(program);
    std::string script = name + "() {\n    local words=''\n    case \"${COMP_WORDS[1]}\" in\n";
    for (HelpSection const& section : help) {
        if (section.command.empty()) continue;
        script += "    " + section.command + ") words=" + quoted(names(section)) + " ;;\n";
    }
    std::string const main = help.empty() || !help.front().command.empty() ? "" : names(help.front());
    std::string const first = commands(help);
    script += "    *) words=" + quoted(main + (first.empty() ? "" : " " + first)) + " ;;\n    esac\n";
    script += "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"${COMP_WORDS[COMP_CWORD]}\")\n}\n";
    return script + "complete -o default -F " + name + " " + program + "\n";
}

std::string zsh_completion(std::string const& program, Help const& help) {
    std::string script = "#compdef " + program + "\ncase \"$words[2]\" in\n";
    for (HelpSection const& section : help) {
        if (section.command.empty()) continue;
        script += section.command + ")\n    shift words\n    ((CURRENT--))\n    _arguments" + zsh_arguments(section) +
                  "    ;;\n";
    }
    script += "*)\n";
    if (std::string const first = commands(help); !first.empty()) {
        script += "    ((CURRENT == 2)) && compadd -- " + first + "\n";
    }
    script += "    _arguments" + zsh_arguments(help.empty() ? HelpSection{} : help.front()) + "    ;;\nesac\n";
    return script;
}

std::string fish_completion(std::string const& program, Help const& help) {
    std::string script;
    for (HelpSection const& section : help) {
        std::string condition;
        if (!section.command.empty()) {
            script += "complete -c " + program + " -n __fish_use_subcommand -a " + section.command + " -d " +
                      quoted(section.text) + "\n";
            condition = "__fish_seen_subcommand_from " + section.command;
        }
        script += fish_options(program, section, condition);
    }
    return script;
}
