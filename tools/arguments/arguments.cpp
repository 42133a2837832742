#include "tools/arguments/arguments.h"

#include <iostream>

void set_up(CLI::App& app) {
    app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    app.set_help_flag();
    app.set_help_all_flag("-h,--help", "Show this help");
    app.set_version_flag("--version", app.get_name() + " " HARDSILENCE_VERSION, "Show the version");
    app.get_formatter()->column_width(24);
    app.get_formatter()->label("REQUIRED", "(required)");
}

CLI::Option* add_value(CLI::App& app, std::string const& name, std::string const& type,
                       std::function<bool(std::string const&)> read, std::string const& wanted,
                       std::string const& help) {
    auto const take = [=](std::string const& value) {
        if (!read(value)) throw CLI::ValidationError(name, "'" + value + "' is not " + wanted);
    };
    return app.add_option_function<std::string>(name, take, help)->type_name(type);
}

std::optional<int> read_arguments(CLI::App& app, int argc, char const* const* argv) {
    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& end) {
        if (end.get_exit_code() == 0) return app.exit(end);
        std::cerr << app.get_name() << ": " << end.what() << std::endl;
        return 1;
    }
    return std::nullopt;
}
