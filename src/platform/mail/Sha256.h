// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <openssl/evp.h>

#include <memory>
#include <QByteArray>
#include <QByteArrayView>

namespace mail {

/// SHA-256 by the library that uses the processor's own instructions for it. It is looked up once, when it is
/// first needed: that loads the library's tables.
class Sha256 {
  public:
    void begin();
    void add(QByteArrayView octets);
    /// Empty where the library has failed.
    QByteArray end();
    const EVP_MD* kind();

  private:
    struct Free {
        void operator()(EVP_MD* digest) const { EVP_MD_free(digest); }
        void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
    };

    std::unique_ptr<EVP_MD, Free> m_kind;
    std::unique_ptr<EVP_MD_CTX, Free> m_context;
    bool m_good = false;
};

}  // namespace mail
