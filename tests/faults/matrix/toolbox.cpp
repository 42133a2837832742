// SPDX-License-Identifier: MIT
#include "tests/faults/matrix/toolbox.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace faults {

void make_folder(std::string const& path) { fs::create_directory(path); }

void make_fifo(std::string const& path) { mkfifo(path.c_str(), 0666); }

void make_socket(std::string const& path) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    std::strncpy(name.sun_path, path.c_str(), sizeof name.sun_path - 1);
    int const socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    static_cast<void>(bind(socket, reinterpret_cast<sockaddr const*>(&name), sizeof name));
    close(socket);
}

void make_link_to(std::string const& target, std::string const& path) { fs::create_symlink(target, path); }

void make_hole(std::string const& path) {
    make_file(path, "");
    fs::resize_file(path, std::uintmax_t{4} << 30);
}

void make_file(std::string const& path, std::string const& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::string const& square_obj() {
    static std::string const text = "o square\nv -1 -1 0\nv 1 -1 0\nv 1 1 0\nv -1 1 0\nf 1 2 3 4\n";
    return text;
}

std::string const& square_asc() {
    static std::string const text = "Named object: \"square\"\r\n"
                                    "Tri-mesh, Vertices: 4     Faces: 2\r\n"
                                    "Vertex list:\r\n"
                                    "Vertex 0:  X:-1 Y:-1 Z:0\r\n"
                                    "Vertex 1:  X:1 Y:-1 Z:0\r\n"
                                    "Vertex 2:  X:1 Y:1 Z:0\r\n"
                                    "Vertex 3:  X:-1 Y:1 Z:0\r\n"
                                    "Face list:\r\n"
                                    "Face 0:    A:2 B:0 C:1 AB:0 BC:1 CA:1\r\n"
                                    "Face 1:    A:0 B:2 C:3 AB:0 BC:1 CA:1\r\n";
    return text;
}

std::vector<std::string> small_picture(std::vector<std::string> const& more) {
    std::vector<std::string> arguments = {recorder, "--size", "256x192", "--samples", "0"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

std::string in_folder(std::function<void(std::string const&)> const& prepare, Command command, End const& end,
                      std::function<std::string(std::string const&)> const& look) {
    support::TempFolder const folder;
    command.folder = folder.Path("");
    command.environment.push_back("LIBGL_ALWAYS_SOFTWARE=1");
    make_file(folder.Path("square.obj"), square_obj());
    for (std::string const name : {"a", "b"}) {
        std::string text = square_asc();
        make_file(folder.Path(name + ".asc"), text.replace(text.find("square"), 6, name));
    }
    if (prepare) prepare(folder.Path(""));
    std::string const wrong = end_complaint(command, end);
    return wrong.empty() && look ? look(folder.Path("")) : wrong;
}

} // namespace faults
