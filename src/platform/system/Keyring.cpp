// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Keyring.h"

#include <libsecret/secret.h>

#include <future>
#include <memory>
#include <optional>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLibrary>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <thread>

#include "platform/text/Words.h"

namespace sys::keyring {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds betweenQuestions{20};
constexpr milliseconds patienceForAny{2000};

const SecretSchema& schema() {
    static const SecretSchema known{"example.quintara.Vestrola",
                                    SECRET_SCHEMA_NONE,
                                    {{"id", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                     {"server", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                     {"user", SECRET_SCHEMA_ATTRIBUTE_STRING},
                                     {nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING}},
                                    0,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr};
    return known;
}

/// The routines that are used, as the library has them.
struct Library {
    decltype(&secret_password_storev_sync) store = nullptr;
    decltype(&secret_password_lookupv_sync) lookUp = nullptr;
    decltype(&secret_password_clearv_sync) clear = nullptr;
    decltype(&secret_password_free) free = nullptr;
    decltype(&secret_service_get_sync) service = nullptr;
    decltype(&secret_service_disconnect) disconnect = nullptr;
    decltype(&g_bus_get_sync) bus = nullptr;
    decltype(&g_dbus_connection_set_exit_on_close) exitOnClose = nullptr;
    decltype(&g_cancellable_new) newCancellable = nullptr;
    decltype(&g_cancellable_cancel) cancel = nullptr;
    decltype(&g_object_unref) unref = nullptr;
    decltype(&g_hash_table_new_full) newTable = nullptr;
    decltype(&g_hash_table_insert) insert = nullptr;
    decltype(&g_hash_table_unref) dropTable = nullptr;
    decltype(&g_str_hash) hash = nullptr;
    decltype(&g_str_equal) equal = nullptr;
    decltype(&g_error_free) dropError = nullptr;
};

template <typename Routine>
bool resolve(QLibrary& library, const char* name, Routine& routine) {
    routine = reinterpret_cast<Routine>(library.resolve(name));
    return routine != nullptr;
}

/// Null where the library is not installed.
const Library* library() {
    static const std::optional<Library> loaded = []() -> std::optional<Library> {
        QLibrary file(QStringLiteral("secret-1"), 0);
        Library all;
        const bool complete =
            file.load() && resolve(file, "secret_password_storev_sync", all.store) &&
            resolve(file, "secret_password_lookupv_sync", all.lookUp) &&
            resolve(file, "secret_password_clearv_sync", all.clear) &&
            resolve(file, "secret_password_free", all.free) &&
            resolve(file, "secret_service_get_sync", all.service) &&
            resolve(file, "secret_service_disconnect", all.disconnect) &&
            resolve(file, "g_bus_get_sync", all.bus) &&
            resolve(file, "g_dbus_connection_set_exit_on_close", all.exitOnClose) &&
            resolve(file, "g_cancellable_new", all.newCancellable) &&
            resolve(file, "g_cancellable_cancel", all.cancel) && resolve(file, "g_object_unref", all.unref) &&
            resolve(file, "g_hash_table_new_full", all.newTable) &&
            resolve(file, "g_hash_table_insert", all.insert) &&
            resolve(file, "g_hash_table_unref", all.dropTable) && resolve(file, "g_str_hash", all.hash) &&
            resolve(file, "g_str_equal", all.equal) && resolve(file, "g_error_free", all.dropError);
        return complete ? std::optional<Library>(all) : std::nullopt;
    }();
    return loaded ? &*loaded : nullptr;
}

/// GLib would start its own bus where the desktop has none.
bool hasBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           (qEnvironmentVariableIsSet("XDG_RUNTIME_DIR") &&
            QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus")));
}

Status missing() {
    return {ErrorCode::NotSupported, Words::tr("Il portachiavi del desktop non c'è.")};
}

/// GLib ends a program whose session bus goes away; a run would end in its middle.
void outliveTheBus(const Library& secret, GCancellable* cancellable) {
    GDBusConnection* const bus = secret.bus(G_BUS_TYPE_SESSION, cancellable, nullptr);
    if (bus == nullptr) return;
    secret.exitOnClose(bus, FALSE);
    secret.unref(bus);
}

/// Attributes of an item, in UTF-8, for as long as the object lives.
class Attributes {
  public:
    Attributes(const Library& secret, const QString& marker, const Binding* binding)
        : m_secret(secret), m_table(secret.newTable(secret.hash, secret.equal, nullptr, nullptr)) {
        put("id", m_id = marker.toUtf8());
        if (binding == nullptr) return;
        put("server", m_server = binding->server.toLower().toUtf8());
        put("user", m_user = binding->user.toUtf8());
    }
    ~Attributes() { m_secret.dropTable(m_table); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    GHashTable* get() const { return m_table; }

  private:
    void put(const char* name, QByteArray& value) {
        m_secret.insert(m_table, const_cast<char*>(name), value.data());
    }

    const Library& m_secret;
    QByteArray m_id, m_server, m_user;
    GHashTable* m_table;
};

/// The result of a call of the library, which runs in another thread.
struct Answer {
    bool succeeded = false;
    QString password;
    QString error;
};

/// Runs a call of the library in a thread, since it blocks, and asks meanwhile whether to continue. After
/// giving up nothing waits for it: a bus that does not answer ignores that. So `call` has copies of what it
/// uses. It takes the library, what cancels it, the place of an error, and the answer's password.
template <typename Call>
Result<QString> run(Call call, const GoOn& goOn) {
    const Library* const secret = library();
    if (secret == nullptr || !hasBus()) return missing();
    const std::shared_ptr<GCancellable> cancellable(secret->newCancellable(), secret->unref);
    std::promise<Answer> promise;
    std::future<Answer> coming = promise.get_future();
    std::thread([secret, cancellable, call = std::move(call), promise = std::move(promise)]() mutable {
        outliveTheBus(*secret, cancellable.get());
        secret->disconnect();  // a service that has come or gone since
        GError* error = nullptr;
        Answer answer;
        answer.succeeded = call(*secret, cancellable.get(), &error, answer.password);
        if (error != nullptr) {
            answer.error = QString::fromUtf8(error->message);
            secret->dropError(error);
        }
        promise.set_value(std::move(answer));
    }).detach();
    QElapsedTimer waited;
    waited.start();
    while (coming.wait_for(betweenQuestions) != std::future_status::ready) {
        if (!goOn || goOn(milliseconds(waited.elapsed()))) continue;
        secret->cancel(cancellable.get());
        return Status(ErrorCode::CancelSelected, Words::tr("Attesa del portachiavi interrotta."));
    }
    const Answer answer = coming.get();
    if (answer.succeeded) return answer.password;
    if (answer.error.isEmpty())
        return Status(ErrorCode::ItemNotFound, Words::tr("Il portachiavi non ha questa password."));
    return Status(ErrorCode::PathAccess, Words::tr("Il portachiavi non risponde: ") + answer.error);
}

}  // namespace

QString newMarker() {
    QString number;
    for (int i = 0; i < 4; ++i)
        number += QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), 8, 16, QChar(u'0'));
    return QStringLiteral("[portachiavi:%1]").arg(number);
}

bool isMarker(const QString& text) {
    static const QRegularExpression form(QStringLiteral("\\A\\[portachiavi:[0-9a-f]{32}\\]\\z"));
    return form.match(text).hasMatch();
}

bool available() {
    const auto call = [](const Library& secret, GCancellable* cancellable, GError** error, QString&) {
        SecretService* const service = secret.service(SECRET_SERVICE_OPEN_SESSION, cancellable, error);
        if (service != nullptr) secret.unref(service);
        return service != nullptr;
    };
    return run(call, [](milliseconds waited) { return waited < patienceForAny; }).ok();
}

Result<QString> store(const Binding& binding, const QString& password, const QString& label,
                      const GoOn& goOn) {
    const QString marker = newMarker();
    const auto call = [=](const Library& secret, GCancellable* cancellable, GError** error, QString&) {
        const Attributes attributes(secret, marker, &binding);
        return secret.store(&schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                            label.toUtf8().constData(), password.toUtf8().constData(), cancellable,
                            error) != FALSE;
    };
    if (const auto stored = run(call, goOn); !stored.ok()) return stored.status();
    const auto kept = lookUp(marker, binding, goOn);
    if (!kept.ok()) return kept.status();
    if (kept.value() == password) return marker;
    static_cast<void>(remove(marker, goOn));
    return Status(ErrorCode::PathAccess, Words::tr("Il portachiavi non conserva la password così com'è."));
}

Result<QString> lookUp(const QString& marker, const Binding& binding, const GoOn& goOn) {
    const auto call = [=](const Library& secret, GCancellable* cancellable, GError** error,
                          QString& password) {
        const Attributes attributes(secret, marker, &binding);
        char* const found = secret.lookUp(&schema(), attributes.get(), cancellable, error);
        if (found == nullptr) return false;
        password = QString::fromUtf8(found);
        secret.free(found);
        return true;
    };
    return run(call, goOn);
}

Status remove(const QString& marker, const GoOn& goOn) {
    const auto call = [=](const Library& secret, GCancellable* cancellable, GError** error, QString&) {
        const Attributes attributes(secret, marker, nullptr);
        return secret.clear(&schema(), attributes.get(), cancellable, error) != FALSE;
    };
    return run(call, goOn).status();
}

}  // namespace sys::keyring
