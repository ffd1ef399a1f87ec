// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/dkim_verifier.h"

// The library's header is C, and standard C++ has no _Bool.
#define _Bool bool
#include <dkim.h>
#undef _Bool

#include <algorithm>
#include <cstring>
#include <memory>

namespace compose {
namespace {

struct Record {
    QByteArray name, text;
};

const Record* known = nullptr;  // the library passes no data of the caller to its callback

DKIM_STAT lookUp(DKIM*, DKIM_SIGINFO* signature, unsigned char* answer, size_t room) {
    const QByteArray name = QByteArray(reinterpret_cast<const char*>(dkim_sig_getselector(signature))) +
                            "._domainkey." +
                            QByteArray(reinterpret_cast<const char*>(dkim_sig_getdomain(signature)));
    if (name != known->name || size_t(known->text.size()) >= room) return DKIM_STAT_NOKEY;
    std::memcpy(answer, known->text.constData(), size_t(known->text.size()) + 1);
    return DKIM_STAT_OK;
}

struct Close {
    void operator()(DKIM_LIB* library) const { dkim_close(library); }
    void operator()(DKIM* verification) const { dkim_free(verification); }
};

}  // namespace

QByteArray openDkimVerdict(const QByteArray& message, const QByteArray& name, const QByteArray& text) {
    const Record record{name, text};
    known = &record;
    const std::unique_ptr<DKIM_LIB, Close> library(dkim_init(nullptr, nullptr));
    dkim_set_key_lookup(library.get(), lookUp);
    DKIM_STAT state = DKIM_STAT_OK;
    unsigned char id[] = "test";
    const std::unique_ptr<DKIM, Close> verification(dkim_verify(library.get(), id, nullptr, &state));
    QByteArray octets = message;  // the library's interface has no const
    if (state == DKIM_STAT_OK)
        state = dkim_chunk(verification.get(), reinterpret_cast<unsigned char*>(octets.data()),
                           size_t(octets.size()));
    if (state == DKIM_STAT_OK) state = dkim_chunk(verification.get(), nullptr, 0);
    if (state == DKIM_STAT_OK) state = dkim_eom(verification.get(), nullptr);
    return state == DKIM_STAT_OK ? "good" : dkim_getresultstr(state);
}

}  // namespace compose
