// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/TcpState.h"

#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>

namespace mail {

int unacknowledgedOctets(int descriptor) {
    int octets = 0;
    return ::ioctl(descriptor, SIOCOUTQ, &octets) == 0 ? octets : 0;
}

int msSinceAcknowledgement(int descriptor) {
    tcp_info info{};
    socklen_t size = sizeof info;
    if (::getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) != 0) return 0;
    return int(info.tcpi_last_ack_recv);
}

qsizetype sendAtOnce(int descriptor, QByteArrayView octets, QByteArrayView end) {
    std::array<iovec, 2> pieces{{{const_cast<char*>(octets.data()), size_t(octets.size())},
                                 {const_cast<char*>(end.data()), size_t(end.size())}}};
    msghdr message{};
    message.msg_iov = pieces.data();
    message.msg_iovlen = pieces.size();
    const ssize_t taken = ::sendmsg(descriptor, &message, MSG_DONTWAIT | MSG_NOSIGNAL);
    return std::max<ssize_t>(taken, 0);
}

bool waitForInput(int descriptor, int ms) {
    pollfd watched{descriptor, POLLIN, 0};
    return descriptor >= 0 && ::poll(&watched, 1, ms) > 0;
}

void resetOnClose(int descriptor) {
    const linger atOnce{1, 0};
    ::setsockopt(descriptor, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

}  // namespace mail
