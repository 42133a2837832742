// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/process.h"
#include "tests/support/temp.h"

#include <csignal>
#include <map>
#include <memory>
#include <string>

/// A Slurm of this machine's own with two nodes, "one" and "two", of a core each. Its key, socket, ports and files are
/// its own, so that it meets no other. A node is a process namespace with a name: it can be lost with all that runs
/// there. Needs root.
class Cluster {
public:
    /// Starts it and waits until it answers.
    /// @return "", or why it cannot be had here
    std::string Start();

    /// The settings of its commands.
    std::string Environment() const { return "SLURM_CONF=" + folder.Path("slurm.conf"); }

    /// Ends a node as a power cut does.
    void Lose(std::string const& node) { nodes.at(node)->Signal(SIGKILL); }

    /// What a command of Slurm says.
    std::string Ask(std::string const& command) const;

    /// What its parts have written last, for a test that fails.
    std::string Logs() const;

private:
    void WriteSettings() const;

    support::TempFolder const folder;
    std::unique_ptr<Process> keys; ///< munged
    std::unique_ptr<Process> controller;
    std::map<std::string, std::unique_ptr<Process>> nodes;
};
