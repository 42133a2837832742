// SPDX-License-Identifier: MIT
#include "tools/arguments/arguments.h"

#include "tools/files/streams.h"

#include <iostream>

namespace {

constexpr std::size_t longest_value = 60;    // of an error line
constexpr std::size_t longest_message = 200; // the same

std::string shortened(std::string const& text, std::size_t most) {
    return text.size() <= most ? text : text.substr(0, most - 3) + "...";
}

} // namespace

void set_up(CLI::App& app) {
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.set_help_flag();
    app.set_help_all_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", app.get_name() + " " HARDSILENCE_VERSION, "Show the version");
    std::string const footer = app.get_footer();
    app.footer(footer + (footer.empty() ? "" : "\n") + exit_status_line);
    app.get_formatter()->column_width(24);
    app.get_formatter()->label("REQUIRED", "(required)");
}

CLI::Option* add_value(CLI::App& app, std::string const& name, std::string const& type,
                       std::function<bool(std::string const&)> read, std::string const& wanted,
                       std::string const& help) {
    auto const take = [=](std::string const& value) {
        if (!read(value))
            throw CLI::ValidationError(name, "'" + shortened(value, longest_value) + "' is not " + wanted);
    };
    return app.add_option_function<std::string>(name, take, help)->type_name(type);
}

std::optional<int> read_arguments(CLI::App& app, int argc, char const* const* argv) {
    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& end) {
        if (end.get_exit_code() == 0) return app.exit(end);
        return complain(app.get_name().c_str(), shortened(end.what(), longest_message));
    }
    return std::nullopt;
}
