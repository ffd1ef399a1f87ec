// SPDX-License-Identifier: GPL-3.0-or-later
// delay_proxy <target port> <milliseconds>: a loopback line with latency. Prints the port it listens at;
// prints the number of flights from the client at the end of its input.
#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QSocketNotifier>

#include "support/DelayProxy.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "delay_proxy <target port> <milliseconds>\n");
        return 2;
    }
    const testing_support::DelayProxy proxy(QHostAddress::LocalHost, quint16(std::atoi(argv[1])),
                                            std::atoi(argv[2]));
    std::printf("%d\n", proxy.port());
    std::fflush(stdout);

    QSocketNotifier input(0, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    const int status = application.exec();
    std::printf("%lld\n", proxy.flights());
    return status;
}
