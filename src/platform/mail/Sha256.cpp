// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Sha256.h"

namespace mail {

void Sha256::begin() {
    m_good = kind() && m_context && EVP_DigestInit_ex2(m_context.get(), kind(), nullptr) == 1;
}

void Sha256::add(QByteArrayView octets) {
    m_good = m_good && EVP_DigestUpdate(m_context.get(), octets.data(), size_t(octets.size())) == 1;
}

QByteArray Sha256::end() {
    constexpr qsizetype digestSize = 32;
    QByteArray value(digestSize, Qt::Uninitialized);
    m_good = m_good && EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char*>(value.data()),
                                          nullptr) == 1;
    return m_good ? value : QByteArray();
}

const EVP_MD* Sha256::kind() {
    if (!m_kind) {
        m_kind.reset(EVP_MD_fetch(nullptr, "SHA256", nullptr));
        m_context.reset(EVP_MD_CTX_new());
    }
    return m_kind.get();
}

}  // namespace mail
