// SPDX-License-Identifier: GPL-3.0-or-later
// raw_client <port> <messages> <octets> [flight] [tls]: delivers one canned message again and again over one
// connection, with MAIL, RCPT and DATA in one write; with "flight" the message by BDAT in the same write. The
// minimum of a client. Prints one line of JSON.
#include <sys/resource.h>

#include <chrono>
#include <cstring>

#include "Line.h"

namespace {

class Client {
  public:
    Client(int descriptor) : m_line(descriptor) {}

    /// Writes, and waits for that many replies.
    void ask(const std::string& octets, int replies) {
        if (!m_line.write(octets)) fail("the server does not read");
        await(replies);
    }
    void await(int replies) {
        while (replies > 0) {
            const std::size_t end = m_input.find('\n');
            if (end == std::string::npos) {
                if (!m_line.read(m_input)) fail("the server has closed");
                continue;
            }
            if (m_input[0] != '2' && m_input[0] != '3') fail("refused");
            if (m_input[3] != '-') --replies;
            m_input.erase(0, end + 1);
        }
    }
    void startTls() {
        ask("STARTTLS\r\n", 1);
        if (!m_line.connect(SSL_CTX_new(TLS_client_method()))) fail("no handshake");
        ask("EHLO raw\r\n", 1);
    }

  private:
    Line m_line;
    std::string m_input;
};

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

std::string messageOf(std::size_t octets) {
    std::string message = "From: a@mittente.example\r\nTo: b@cliente.example\r\nSubject: x\r\n\r\n";
    while (message.size() < octets)
        message += std::string(70, 'x') + "\r\n";
    return message;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) fail("raw_client <port> <messages> <octets> [flight] [tls]");
    bool flight = false, tls = false;
    for (int i = 4; i < argc; ++i) {
        flight = flight || std::strcmp(argv[i], "flight") == 0;
        tls = tls || std::strcmp(argv[i], "tls") == 0;
    }
    const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(std::atoi(argv[1])));
    if (::connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        fail("no connection");
    Client client(descriptor);
    client.await(1);
    client.ask("EHLO raw\r\n", 1);
    if (tls) client.startTls();

    const int messages = std::atoi(argv[2]);
    const std::string message = messageOf(static_cast<std::size_t>(std::atoi(argv[3])));
    const std::string envelope = "MAIL FROM:<a@mittente.example>\r\nRCPT TO:<b@cliente.example>\r\n";
    const std::string whole = envelope + "BDAT " + std::to_string(message.size()) + " LAST\r\n" + message;
    const auto start = std::chrono::steady_clock::now();
    const double before = processorSeconds();
    for (int i = 0; i < messages; ++i) {
        if (flight) {
            client.ask(whole, 3);
        } else {
            client.ask(envelope + "DATA\r\n", 3);
            client.ask(message + ".\r\n", 1);
        }
    }
    const double used = processorSeconds() - before;
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf(
        "{\"messages\": %d, \"seconds\": %.6f, \"perSecond\": %.1f, \"processorMicroseconds\": %.1f}\n",
        messages, seconds, messages / seconds, used * 1e6 / messages);
}
