// SPDX-License-Identifier: MIT
#include "tools/asc/packing.h"

#include <cstdint>
#include <cstring>

namespace asc {

namespace {

void put(std::string& bytes, void const* from, std::size_t size) { bytes.append(static_cast<char const*>(from), size); }

void put_count(std::string& bytes, std::size_t count) {
    auto const number = static_cast<std::uint64_t>(count);
    put(bytes, &number, sizeof number);
}

/// Takes bytes from the front.
class Unpacker {
public:
    explicit Unpacker(std::string_view bytes) : rest(bytes) {}

    /// @param each  bytes that one of them takes at least
    bool Count(std::size_t& count, std::size_t each) {
        std::uint64_t number = 0;
        if (!Take(&number, sizeof number) || number > rest.size() / each) return false;
        count = number;
        return true;
    }
    bool Take(void* to, std::size_t size) {
        if (rest.size() < size) return false;
        std::memcpy(to, rest.data(), size);
        rest.remove_prefix(size);
        return true;
    }
    bool Done() const { return rest.empty(); }

private:
    std::string_view rest;
};

bool take_text(Unpacker& unpacker, std::string& text) {
    std::size_t size = 0;
    if (!unpacker.Count(size, 1)) return false;
    text.resize(size);
    return unpacker.Take(text.data(), size);
}

bool take_vertices(Unpacker& unpacker, std::vector<Vec3>& vertices) {
    std::size_t count = 0;
    if (!unpacker.Count(count, sizeof(Vec3))) return false;
    vertices.resize(count);
    for (Vec3& vertex : vertices) unpacker.Take(&vertex, sizeof vertex);
    return true;
}

bool take_faces(Unpacker& unpacker, std::size_t vertices, std::vector<Face>& faces) {
    std::size_t count = 0;
    if (!unpacker.Count(count, sizeof(Face::v))) return false;
    faces.resize(count);
    for (Face& face : faces) {
        unpacker.Take(&face.v, sizeof face.v);
        for (int const v : face.v) {
            if (v < 0 || static_cast<std::size_t>(v) >= vertices) return false;
        }
    }
    return true;
}

} // namespace

std::string pack(std::vector<Object> const& objects) {
    std::string bytes;
    put_count(bytes, objects.size());
    for (Object const& object : objects) {
        put_count(bytes, object.name.size());
        bytes += object.name;
        put_count(bytes, object.vertices.size());
        for (Vec3 const& vertex : object.vertices) put(bytes, &vertex, sizeof vertex);
        put_count(bytes, object.faces.size());
        for (Face const& face : object.faces) put(bytes, &face.v, sizeof face.v);
    }
    return bytes;
}

std::optional<std::vector<Object>> unpack(std::string_view bytes) {
    Unpacker unpacker(bytes);
    std::size_t count = 0;
    if (!unpacker.Count(count, 3 * sizeof(std::uint64_t))) return {};
    std::vector<Object> objects(count);
    for (Object& object : objects) {
        if (!take_text(unpacker, object.name) || !take_vertices(unpacker, object.vertices) ||
            !take_faces(unpacker, object.vertices.size(), object.faces)) {
            return {};
        }
    }
    if (!unpacker.Done()) return {};
    return objects;
}

} // namespace asc
