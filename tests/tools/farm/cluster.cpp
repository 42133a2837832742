// SPDX-License-Identifier: MIT
#include "tests/tools/farm/cluster.h"

#include "tests/support/command.h"

#include <arpa/inet.h>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr char const* node_names[] = {"one", "two"};

// Slurm waits as long as this allows before it gives a lost node up (SlurmdTimeout), and before it runs the node's job
// again (cred_expire), which has to be longer than a job may take to start.
constexpr char const* settings = R"(ClusterName=test
SlurmctldHost=@host(127.0.0.1)
SlurmctldPort=@port0
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
AuthInfo=socket=@dir/munge.socket,cred_expire=6
CredType=cred/munge
StateSaveLocation=@dir/state
SlurmdSpoolDir=@dir/spool-%n
SlurmctldPidFile=@dir/slurmctld.pid
SlurmdPidFile=@dir/slurmd-%n.pid
SlurmctldLogFile=@dir/slurmctld.log
SlurmdLogFile=@dir/slurmd-%n.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
MpiDefault=none
ReturnToService=2
SlurmdTimeout=5
BatchStartTimeout=10
KillWait=2
SchedulerParameters=batch_sched_delay=0,sched_interval=1
NodeName=one NodeHostname=one NodeAddr=127.0.0.1 Port=@port1 CPUs=1
NodeName=two NodeHostname=two NodeAddr=127.0.0.1 Port=@port2 CPUs=1
PartitionName=all Nodes=ALL Default=YES State=UP MaxTime=INFINITE
)";

/// Ports that nobody listens at.
std::vector<int> free_ports(std::size_t count) {
    std::vector<int> ports;
    std::vector<int> sockets; // open until all are found, so that none is found twice
    while (ports.size() < count) {
        int const socket_of_one = socket(AF_INET, SOCK_STREAM, 0);
        sockets.push_back(socket_of_one);
        sockaddr_in address{};
        socklen_t size = sizeof address;
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        bind(socket_of_one, reinterpret_cast<sockaddr*>(&address), size);
        getsockname(socket_of_one, reinterpret_cast<sockaddr*>(&address), &size);
        ports.push_back(ntohs(address.sin_port));
    }
    for (int const one : sockets) close(one);
    return ports;
}

void replace(std::string& text, std::string const& what, std::string const& with) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

} // namespace

void Cluster::WriteSettings() const {
    std::string text = settings;
    replace(text, "@dir", folder.Path("").substr(0, folder.Path("").size() - 1));
    replace(text, "@host", support::run_shell("printf %s $(hostname)").output);
    auto const ports = free_ports(3);
    for (std::size_t i = 0; i < ports.size(); ++i) replace(text, "@port" + std::to_string(i), std::to_string(ports[i]));
    folder.Write("slurm.conf", text);
}

std::string Cluster::Start() {
    if (geteuid() != 0) return "only root starts Slurm's daemons";
    if (support::run_shell("PATH=$PATH:/usr/sbin:/sbin; command -v munged slurmctld slurmd sbatch unshare").status !=
        0) {
        return "slurm-wlm and munge are not installed";
    }
    if (support::run_shell("unshare --uts --pid --mount-proc --fork true").status != 0) {
        return "no process namespace can be made here";
    }
    WriteSettings();
    fs::create_directory(folder.Path("state"));
    std::string const file = folder.Path("");
    fs::permissions(folder.Write("key", support::run_shell("head -c 64 /dev/urandom").output), fs::perms::owner_read);
    std::string const path = "PATH=" + std::string(std::getenv("PATH")) + ":/usr/sbin:/sbin";
    using Words = std::vector<std::string>;
    keys = std::make_unique<Process>(Words{"munged", "--foreground", "--force", "--key-file=" + file + "key",
                                           "--socket=" + file + "munge.socket", "--pid-file=" + file + "munged.pid",
                                           "--log-file=" + file + "munged.log", "--seed-file=" + file + "seed"},
                                     Words{path});
    for (int tries = 0; !fs::exists(file + "munge.socket") && tries < 500; ++tries) std::this_thread::sleep_for(20ms);
    controller =
        std::make_unique<Process>(Words{"slurmctld", "-D", "-f", file + "slurm.conf"}, Words{path, Environment()});
    for (std::string const name : node_names) {
        nodes[name] =
            std::make_unique<Process>(Words{"unshare", "--uts", "--pid", "--mount-proc", "--fork", "--kill-child", "sh",
                                            "-c", "hostname " + name + " && slurmd -D -f " + file + "slurm.conf"},
                                      Words{path, Environment()});
    }
    for (int tries = 0; tries < 300; ++tries) {
        if (Ask("sinfo --noheader --states=idle --format=%D") == "2\n") return "";
        std::this_thread::sleep_for(100ms);
    }
    return "Slurm does not start:\n" + Logs();
}

std::string Cluster::Ask(std::string const& command) const {
    return support::run_shell(command + " 2>&1", {.environment = {Environment()}}).output;
}

std::string Cluster::Logs() const {
    return support::run_shell("tail -n 20 *.log", {.folder = folder.Path("")}).output + Ask("sinfo") + Ask("squeue");
}
