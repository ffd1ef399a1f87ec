// SPDX-License-Identifier: GPL-3.0-or-later
// sign_messages <messages> <octets> <folder> <key.pem>: composes messages of about that size with and without
// a signature for mittente.example, whose key lies in the folder, and signs as many digests with the key
// alone, in turns of a hundred. Prints one line of JSON: microseconds of the processor a message.
#include <openssl/evp.h>
#include <openssl/pem.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <QString>

#include "platform/mail/Composer.h"

namespace {

constexpr int turn = 100;

double processorMicroseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
}

mail::MessageData newsletter(int octets) {
    mail::MessageData message;
    message.FromName = QStringLiteral("Notizie");
    message.FromAddress = QStringLiteral("notizie@mittente.example");
    message.ToAddress = QStringLiteral("rossi@cliente.example");
    message.Subject = QStringLiteral("Notizie per Rossi");
    message.BodyHtml = QStringLiteral("<html><body>\n");
    while (message.BodyHtml.size() < octets)
        message.BodyHtml +=
            QStringLiteral("<p>Gentile Rossi, l'offerta di questa settimana vale in ogni negozio.</p>\n");
    message.BodyHtml += QStringLiteral("</body></html>");
    message.BodyText = QStringLiteral("Gentile Rossi, le offerte di questa settimana.\n");
    message.TemplateHtml = message.BodyHtml;
    return message;
}

class Key {
  public:
    explicit Key(const char* path) {
        std::FILE* const file = std::fopen(path, "r");
        EVP_PKEY* const key = file ? PEM_read_PrivateKey(file, nullptr, nullptr, nullptr) : nullptr;
        m_context = key ? EVP_PKEY_CTX_new(key, nullptr) : nullptr;
        if (!m_context || EVP_PKEY_sign_init(m_context) != 1 ||
            EVP_PKEY_CTX_set_signature_md(m_context, EVP_sha256()) != 1)
            std::exit(1);
        m_signature.resize(std::size_t(EVP_PKEY_get_size(key)));
    }
    void sign() {
        std::size_t size = m_signature.size();
        if (EVP_PKEY_sign(m_context, m_signature.data(), &size, m_digest.data(), m_digest.size()) != 1)
            std::exit(1);
    }

  private:
    EVP_PKEY_CTX* m_context = nullptr;
    std::vector<unsigned char> m_digest = std::vector<unsigned char>(32), m_signature;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "sign_messages <messages> <octets> <folder> <key.pem>\n");
        return 2;
    }
    const int messages = std::atoi(argv[1]);
    const mail::MessageData plain = newsletter(std::atoi(argv[2]));
    mail::MessageData toSign = plain;
    toSign.DkimFolder = QString::fromLocal8Bit(argv[3]);
    mail::Composer composer;
    Key key(argv[4]);
    const auto timed = [](auto work) {
        const double start = processorMicroseconds();
        for (int i = 0; i < turn; ++i)
            work();
        return processorMicroseconds() - start;
    };
    const auto compose = [&composer](const mail::MessageData& message) {
        const auto composed = composer.compose(message);
        const bool isSigned = composed.value().text.pieces().front().startsWith("DKIM-Signature:");
        if (isSigned == message.DkimFolder.isEmpty()) std::exit(1);
    };
    double without = 0, with = 0, alone = 0;
    for (int i = 0; i < messages; i += turn) {
        without += timed([&] { compose(plain); });
        with += timed([&] { compose(toSign); });
        alone += timed([&] { key.sign(); });
    }
    std::printf("{\"added\": %.2f, \"alone\": %.2f}\n", (with - without) / messages, alone / messages);
}
