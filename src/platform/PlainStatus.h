// SPDX-License-Identifier: GPL-3.0-or-later
// The outcome of a platform call: Status, Result and the error numbers, for code without Qt too.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <variant>

#include "platform/Phrase.h"

class QString;

/// Numbers of the failures that the user can see ("Errore N:"). They are the ones that office users
/// and their support know from programs of this kind, so that a number can be looked up.
enum class ErrorCode : int {
    None = 0,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    Internal = 51,
    FileNotFound = 53,
    DeviceIo = 57,
    InputPastEnd = 62,
    PathAccess = 75,
    InvalidNull = 94,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    InvalidPassword = 3031,
    SyntaxError = 3075,
    TableNotFound = 3078,
    FileInUse = 3045,
    ReadOnlyDatabase = 3027,
    FieldTooSmall = 3163,
    ValueRequired = 3314,
    RecordTooLarge = 3047,
    NotSupported = 3251,
    ItemNotFound = 3265,
    UnrecognizedFormat = 3343,
    DamagedDatabase = 3049,
    DatabaseFull = 3183,
    CancelSelected = 32755,
    Timeout = -2147217871,
};

/// Outcome of a platform call: success, or an error number with a text that can be shown to the user
/// unchanged. Platform code only ever returns it; what a failure means to the program is decided above.
///
/// Code without Qt includes this header, hands over a phrase and reads plainText(), which is Italian; all
/// other code includes platform/Status.h, which adds the two members that need a QString: text() is in the
/// language in use.
class [[nodiscard]] Status {
  public:
    Status() = default;
    Status(ErrorCode code, Phrase text) : m_code(code), m_text(std::make_shared<Phrase>(std::move(text))) {}
    inline Status(ErrorCode code, const QString& text);

    bool ok() const { return m_code == ErrorCode::None; }
    ErrorCode code() const { return m_code; }
    inline QString text() const;
    std::string plainText() const { return m_text ? m_text->sourceText() : std::string(); }

    /// The file that a failure is about; empty where that is not known.
    const std::u16string& file() const { return m_file; }
    Status about(std::u16string file) && {
        m_file = std::move(file);
        return std::move(*this);
    }

  private:
    ErrorCode m_code = ErrorCode::None;
    std::shared_ptr<const Phrase> m_text;
    std::u16string m_file;
};

/// A value or the Status that says why there is none. value() may only be called when ok().
template <class T>
class [[nodiscard]] Result {
  public:
    Result(T value) : m_content(std::move(value)) {}
    Result(Status failure) : m_content(std::move(failure)) {}

    bool ok() const { return std::holds_alternative<T>(m_content); }
    const Status& status() const {
        static const Status success;
        return ok() ? success : std::get<Status>(m_content);
    }
    T& value() & { return std::get<T>(m_content); }
    const T& value() const& { return std::get<T>(m_content); }
    T value() && { return std::get<T>(std::move(m_content)); }

  private:
    std::variant<T, Status> m_content;
};
