// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <random>

#include "torture/OddNames.h"

/// Replies of a name server, made from the datagram that asks.
namespace replies {

/// The name that a question asks for, with points; its type.
QByteArray nameIn(const QByteArray& question);
int typeIn(const QByteArray& question);

/// A sound reply with so many records of the type that is asked for; addresses count up from `address`.
QByteArray sound(const QByteArray& question, int records, const char* address);
/// What a case sends. `overTcp`: on a connection, where the truncated ones are complete.
QByteArray of(OddNames::Kind kind, const QByteArray& question, std::mt19937& random, bool overTcp);

}  // namespace replies
