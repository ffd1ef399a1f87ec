// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/policy/OrganizationalDomain.h"

#include <libpsl.h>

#include <memory>

#include "platform/policy/DomainText.h"

namespace policy {

namespace {

struct FreeList {
    void operator()(psl_ctx_t* list) const { psl_free(list); }
};

const psl_ctx_t* publicSuffixes() {
    static const std::unique_ptr<psl_ctx_t, FreeList> list(psl_latest(nullptr));
    return list.get();
}

}  // namespace

QByteArray organizationalDomain(const QByteArray& domain) {
    const char* const registered =
        isName(domain) ? psl_registrable_domain(publicSuffixes(), domain.constData()) : nullptr;
    return registered ? QByteArray(registered) : domain;
}

bool isAligned(const QByteArray& fromDomain, const QByteArray& authenticated, bool strict) {
    const QByteArray from = plainName(fromDomain), other = plainName(authenticated);
    return from == other || (!strict && organizationalDomain(from) == organizationalDomain(other));
}

}  // namespace policy
