#pragma once

#include <chrono>
#include <functional>
#include <QString>

#include "platform/Status.h"

/// Passwords in the desktop's keyring (the Secret Service of freedesktop.org, through libsecret). The library
/// is looked for at run time, and a desktop without a keyring is none the worse for it.
///
/// What stands in a file in place of a password is a marker: a random number of its own, by which the keyring
/// finds the password only together with the server and the user that it was stored for.
namespace sys::keyring {

/// What a password is bound to.
struct Binding {
    QString server;
    QString user;
};

/// Asked every few milliseconds while the keyring is waited for, as it may ask the user for its own password;
/// false gives up, with CancelSelected.
using GoOn = std::function<bool(std::chrono::milliseconds waited)>;

/// A new marker: 128 bits from the system's random numbers.
QString newMarker();
/// Whether the text is a marker. No program may send one as a password.
bool isMarker(const QString& text);

/// Whether there is a keyring. Starts one that the desktop starts on demand; gives up after two seconds.
bool available();

/// Stores the password under a new marker, which is the result, and has read it back. NotSupported where
/// there is no keyring; otherwise PathAccess with what the keyring said.
Result<QString> store(const Binding& binding, const QString& password, const QString& label,
                      const GoOn& goOn = {});
/// The password of a marker. Fails like store(), and with ItemNotFound where the keyring has none for this
/// marker, server and user.
Result<QString> lookUp(const QString& marker, const Binding& binding, const GoOn& goOn = {});
/// Takes it out of the keyring, whatever it is bound to.
Status remove(const QString& marker, const GoOn& goOn = {});

}  // namespace sys::keyring
