// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

/// A copy of the show's mesh files and of its soundtrack, in a folder of its own: the last ones that were good.
/// Whatever becomes of "data/" meanwhile, the show can be built of them again and goes on sounding.
class GoodData {
public:
    /// Makes the folder. "data/" is looked for in the working folder.
    GoodData();
    ~GoodData();
    GoodData(GoodData const&) = delete;
    GoodData& operator=(GoodData const&) = delete;

    enum class Result {
        Same,  ///< as the copy
        New,   ///< copied
        Faulty ///< the copy is as it was; Fault() tells why
    };

    /// Looks through the mesh files, see check_meshes, and copies them.
    Result Take();

    /// The same for the soundtrack, see check_soundtrack.
    Result TakeSoundtrack();

    /// Where the copy of the soundtrack is; "" before there is one.
    std::string const& Soundtrack() const { return soundtrack; }

    /// A line for each of the two whose last Take was faulty; "" for none.
    std::string Fault() const { return mesh_fault + (mesh_fault.empty() ? "" : "\n") + sound_fault; }

    /// Works with the copy's folder as the working folder.
    void Within(std::function<void()> const& work) const;

private:
    bool Copy(std::string const& to, bool& same);

    std::string folder; ///< holds good/data/ and new/data/
    std::string soundtrack;
    std::string mesh_fault;
    std::string sound_fault;
    bool has_copy = false;
    int soundtracks = 0; ///< copied so far
};
