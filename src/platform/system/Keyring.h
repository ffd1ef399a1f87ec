// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <QString>

#include "platform/Status.h"

/// Passwords in the desktop's keyring (the Secret Service of freedesktop.org, through libsecret). The library
/// is loaded at run time, and the program also works on a desktop without a keyring.
///
/// A file contains a marker instead of a password: a unique random number, by which the keyring finds the
/// password only together with the server and the user that it was stored for.
namespace sys::keyring {

/// The account that a password is bound to.
struct Binding {
    QString server;
    QString user;
};

/// Called every few milliseconds during a call of the keyring, which may ask the user for its own password;
/// false ends the call with CancelSelected.
using GoOn = std::function<bool(std::chrono::milliseconds waited)>;

/// A new marker: 128 bits from the system's random numbers.
QString newMarker();
/// Whether the text is a marker. No program may send one as a password.
bool isMarker(const QString& text);

/// Whether there is a keyring. Starts one that the desktop starts on demand; waits two seconds at most.
bool available();

/// Stores the password under a new marker, which is returned, and reads it back. NotSupported where
/// there is no keyring; otherwise PathAccess with the keyring's message.
Result<QString> store(const Binding& binding, const QString& password, const QString& label,
                      const GoOn& goOn = {});
/// The password of a marker. Fails like store(), and with ItemNotFound where the keyring has none for this
/// marker, server and user.
Result<QString> lookUp(const QString& marker, const Binding& binding, const GoOn& goOn = {});
/// Removes it from the keyring, whatever it is bound to.
Status remove(const QString& marker, const GoOn& goOn = {});

}  // namespace sys::keyring
