// SPDX-License-Identifier: GPL-3.0-or-later
// Replaces routines of the library that reads Outlook files, as code that such a file has injected would.
// It prints what it could reach as contacts, so that the test can read it.
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

void tell(const char* what) {
    std::printf("{\"Email1Address\":\"%s\"}\n", what);
    std::fflush(stdout);
}

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

void runShell(const char* word) {
    const std::string line = std::string("echo '{\"Email1Address\":\"") + word + "\"}'";
    ::execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
}

void reach() {
    if (::open("/etc/passwd", O_RDONLY) >= 0) tell("read");
    if (::open(setting("EVIL_FILE").c_str(), O_WRONLY | O_CREAT, 0600) >= 0) tell("write");
    if (::chmod(setting("EVIL_VICTIM").c_str(), 0777) == 0) tell("chmod");
    if (::unlink(setting("EVIL_VICTIM").c_str()) == 0) tell("unlink");
    for (const int family : {AF_UNIX, AF_INET, AF_INET6, AF_NETLINK}) {
        if (::socket(family, SOCK_DGRAM, 0) >= 0) tell("socket");
    }
    if (::kill(::getppid(), 0) == 0) tell("kill");
    const pid_t child = ::fork();
    if (child == 0) {
        runShell("shell");
        ::_exit(1);
    }
    if (child > 0) tell("fork");
    tell("end");
    runShell("exec");
}

void eat() {
    std::size_t got = 0;
    for (void* block = nullptr; got < 1024 && (block = std::malloc(1 << 20)) != nullptr; ++got)
        std::memset(block, 1, 1 << 20);
    tell(got < 512 ? "bounded" : "unbounded");
}

}  // namespace

extern "C" int pst_open(void*, const char*, const char*) {
    return 0;
}

// the first routine after the file is open
extern "C" int pst_load_index(void*) {
    std::puts("{\"count\":100000000}");
    const std::string deed = setting("EVIL_DEED");
    if (deed == "reach") reach();
    if (deed == "eat") eat();
    while (deed == "flood")
        std::puts("{}");
    std::exit(0);
}
