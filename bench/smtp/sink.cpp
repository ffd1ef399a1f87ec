// SPDX-License-Identifier: GPL-3.0-or-later
// sink [<certificate and key.pem>]: an SMTP server on loopback that accepts everything and keeps nothing, a
// thread for each connection. It offers PIPELINING, CHUNKING and 8BITMIME, and STARTTLS where it has a
// certificate. The replies to what came together go out together. Prints the port it listens at and ends with
// its input.
#include <algorithm>
#include <cctype>
#include <thread>
#include <utility>

#include "Line.h"

namespace {

class Session {
  public:
    Session(int descriptor, SSL_CTX* tls) : m_line(descriptor), m_tls(tls) {}

    void serve() {
        m_line.write("220 sink\r\n");
        std::string replies;
        while (m_open && m_line.read(m_input)) {
            while (m_open && takeOne(replies)) {
            }
            m_line.write(std::exchange(replies, {}));
        }
    }

  private:
    // False: more has to come first
    bool takeOne(std::string& replies) {
        if (m_left > 0) return takeChunk(replies);
        if (m_inData) return takeData(replies);
        const std::size_t end = m_input.find("\r\n");
        if (end == std::string::npos) return false;
        const std::string line = m_input.substr(0, end);
        m_input.erase(0, end + 2);
        std::string verb = line.substr(0, 4);
        std::transform(verb.begin(), verb.end(), verb.begin(),
                       [](unsigned char c) { return std::toupper(c); });
        if (verb == "EHLO") {
            replies += "250-sink\r\n250-PIPELINING\r\n250-CHUNKING\r\n";
            replies += m_tls ? "250-STARTTLS\r\n250 8BITMIME\r\n" : "250 8BITMIME\r\n";
        } else if (verb == "DATA") {
            m_inData = true;
            replies += "354 go on\r\n";
        } else if (verb == "BDAT") {
            m_left = std::strtoul(line.c_str() + 4, nullptr, 10);
        } else if (verb == "STAR" && m_tls) {
            m_line.write(replies + "220 go on\r\n");
            replies.clear();
            m_open = m_line.accept(std::exchange(m_tls, nullptr));
        } else {
            m_open = verb != "QUIT";
            replies += m_open ? "250 ok\r\n" : "221 bye\r\n";
        }
        return true;
    }

    bool takeChunk(std::string& replies) {
        const std::size_t taken = std::min(m_left, m_input.size());
        m_input.erase(0, taken);
        m_left -= taken;
        if (m_left == 0) replies += "250 taken\r\n";
        return m_left == 0;
    }

    bool takeData(std::string& replies) {
        const std::size_t end = m_input.find("\r\n.\r\n");
        if (end == std::string::npos) return false;
        m_input.erase(0, end + 5);
        m_inData = false;
        replies += "250 taken\r\n";
        return true;
    }

    Line m_line;
    SSL_CTX* m_tls;
    std::string m_input;
    std::size_t m_left = 0;  ///< of a chunk
    bool m_inData = false;
    bool m_open = true;
};

SSL_CTX* contextOf(const char* pem) {
    SSL_CTX* const context = SSL_CTX_new(TLS_server_method());
    if (SSL_CTX_use_certificate_file(context, pem, SSL_FILETYPE_PEM) != 1 ||
        SSL_CTX_use_PrivateKey_file(context, pem, SSL_FILETYPE_PEM) != 1)
        fail("no certificate");
    return context;
}

}  // namespace

int main(int argc, char** argv) {
    SSL_CTX* const tls = argc > 1 ? contextOf(argv[1]) : nullptr;
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (::bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 || ::listen(listener, 16) != 0 ||
        ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        fail("cannot listen");
    std::printf("%d\n", ntohs(address.sin_port));
    std::fflush(stdout);
    std::thread([listener, tls] {
        for (int descriptor; (descriptor = ::accept(listener, nullptr, nullptr)) >= 0;)
            std::thread([descriptor, tls] { Session(descriptor, tls).serve(); }).detach();
    }).detach();
    while (std::getchar() != EOF) {
    }
    std::_Exit(0);
}
