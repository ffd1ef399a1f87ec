// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/Resolver.h"

#include <ares.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <unistd.h>

#include <map>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <utility>

#include "platform/dns/ReplyReader.h"
#include "platform/text/Words.h"

namespace dns {

namespace {

// Sockets of our own: a TCP connection that a server has closed must not raise SIGPIPE.

ares_socket_t openSocket(int family, int type, int protocol, void*) {
    return ::socket(family, type | SOCK_NONBLOCK | SOCK_CLOEXEC, protocol);
}

int closeSocket(ares_socket_t socket, void*) {
    return ::close(socket);
}

int connectSocket(ares_socket_t socket, const sockaddr* address, ares_socklen_t size, void*) {
    return ::connect(socket, address, size);
}

ares_ssize_t receiveFrom(ares_socket_t socket, void* buffer, size_t size, int flags, sockaddr* from,
                         ares_socklen_t* fromSize, void*) {
    return ::recvfrom(socket, buffer, size, flags, from, fromSize);
}

ares_ssize_t sendPieces(ares_socket_t socket, const iovec* pieces, int count, void*) {
    msghdr message{};
    message.msg_iov = const_cast<iovec*>(pieces);
    message.msg_iovlen = static_cast<size_t>(count);
    return ::sendmsg(socket, &message, MSG_NOSIGNAL);
}

const ares_socket_functions ownSockets{openSocket, closeSocket, connectSocket, receiveFrom, sendPieces};

Answer failed(const QString& why) {
    Answer answer;
    answer.why = why;
    return answer;
}

Answer answerOf(Type type, int status, QByteArrayView reply) {
    Answer answer;
    switch (status) {
        case ARES_SUCCESS:
            return readReply(type, reply);
        case ARES_ENODATA:
            answer.kind = Answer::Kind::NoRecords;
            return answer;
        case ARES_ENOTFOUND:
        case ARES_EBADNAME:
            answer.kind = Answer::Kind::NoName;
            return answer;
        case ARES_ETIMEOUT:
            return failed(Words::tr("il DNS non risponde"));
        case ARES_ECONNREFUSED:
            return failed(Words::tr("nessun server DNS è raggiungibile"));
        case ARES_ESERVFAIL:
            return failed(Words::tr("il DNS risponde con un guasto (SERVFAIL)"));
        case ARES_EREFUSED:
            return failed(Words::tr("il DNS rifiuta la domanda (REFUSED)"));
        case ARES_ENOTIMP:
            return failed(Words::tr("il DNS non conosce domande di questo tipo (NOTIMP)"));
        case ARES_EFORMERR:
            return failed(Words::tr("il DNS non capisce la domanda (FORMERR)"));
        default:
            return failed(Words::tr("il DNS ha dato una risposta che non si può usare"));
    }
}

// In the library's form a backslash is an escape for what follows it.
QByteArray escapedName(const QByteArray& name) {
    return QByteArray(name).replace('\\', "\\\\");
}

}  // namespace

struct Resolver::State : QObject {
    struct Pending {
        Question question;
        Done done;
        std::unique_ptr<QTimer> deadline;
    };
    /// What the library passes back with an answer.
    struct Asked {
        State* state;
        quint64 number;
    };
    struct Notifiers {
        std::unique_ptr<QSocketNotifier> read, write;
    };

    /// What follows a server's reply with an error code.
    enum class ErrorReply { NextServer, Answer };

    State(const Times& given, ErrorReply onError) : times(given), onErrorReply(onError) {
        ares_library_init(ARES_LIB_INIT_ALL);
        ares_options options{};
        options.flags = ARES_FLAG_NOSEARCH | ARES_FLAG_NOALIASES;
        if (onErrorReply == ErrorReply::Answer) options.flags |= ARES_FLAG_NOCHECKRESP;
        options.timeout = times.tryMs;
        options.tries = times.tries;
        options.sock_state_cb = onSocketState;
        options.sock_state_cb_data = this;
        ready = ares_init_options(&channel, &options,
                                  ARES_OPT_FLAGS | ARES_OPT_TIMEOUTMS | ARES_OPT_TRIES |
                                      ARES_OPT_SOCK_STATE_CB) == ARES_SUCCESS;
        if (ready) ares_set_socket_functions(channel, &ownSockets, nullptr);
        wait.setSingleShot(true);
        connect(&wait, &QTimer::timeout, this, [this] { process(ARES_SOCKET_BAD, ARES_SOCKET_BAD); });
    }

    ~State() override {
        pending.clear();
        if (ready) ares_destroy(channel);
        ares_library_cleanup();
    }

    static void onSocketState(void* data, ares_socket_t socket, int readable, int writable) {
        static_cast<State*>(data)->watch(socket, readable != 0, writable != 0);
    }

    static void onAnswer(void* data, int status, int /*timeouts*/, unsigned char* reply, int size) {
        const std::unique_ptr<Asked> asked(static_cast<Asked*>(data));
        State& state = *asked->state;
        const auto found = state.pending.find(asked->number);
        if (found == state.pending.end()) return;
        if (status == ARES_ECONNREFUSED && state.onErrorReply == ErrorReply::NextServer) {
            state.askWhy(asked->number);
            return;
        }
        state.settle(asked->number,
                     answerOf(found->second.question.type, status,
                              QByteArrayView(reinterpret_cast<const char*>(reply), reply ? size : 0)));
    }

    void ask(const Question& question, Done done) {
        const quint64 number = ++lastNumber;
        auto deadline = std::make_unique<QTimer>();
        deadline->setSingleShot(true);
        connect(deadline.get(), &QTimer::timeout, this, [this, number] {
            // The timer is destroyed with its entry, and this is its own event.
            pending.at(number).deadline.release()->deleteLater();
            settle(number, failed(Words::tr("il DNS non risponde")));
        });
        deadline->start(times.deadlineMs);
        pending.emplace(number, Pending{question, std::move(done), std::move(deadline)});
        if (!ready) {
            settle(number, failed(Words::tr("il DNS di questo computer non è impostato")));
            return;
        }
        constexpr int internetClass = 1;
        ares_query(channel, escapedName(question.name).constData(), internetClass,
                   static_cast<int>(question.type), onAnswer, new Asked{this, number});
        schedule();
    }

    /// Once every server has failed the library does not distinguish a server that answered with an error
    /// code from one that is not there. The question is put once more, and the first reply is taken as it is.
    void askWhy(quint64 number) {
        if (!why) {
            why = std::make_unique<State>(times, ErrorReply::Answer);
            if (!servers.isEmpty()) why->setServers(servers);
        }
        why->ask(pending.at(number).question, [this, number](const Answer& answer) {
            if (pending.contains(number)) settle(number, answer);
        });
    }

    void setServers(const QByteArray& given) {
        servers = given;
        if (ready) ares_set_servers_ports_csv(channel, servers.constData());
    }

    void cancel() {
        pending.clear();
        why.reset();
        if (ready) ares_cancel(channel);
    }

    void watch(ares_socket_t socket, bool readable, bool writable) {
        if (!readable && !writable) {
            const auto found = sockets.find(socket);
            if (found == sockets.end()) return;
            // Its own event may be the one under way.
            for (auto* notifier : {found->second.read.release(), found->second.write.release()}) {
                notifier->setEnabled(false);
                notifier->deleteLater();
            }
            sockets.erase(found);
            return;
        }
        Notifiers& notifiers = sockets[socket];
        if (!notifiers.read) {
            notifiers.read = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
            notifiers.write = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Write);
            connect(notifiers.read.get(), &QSocketNotifier::activated, this,
                    [this, socket] { process(socket, ARES_SOCKET_BAD); });
            connect(notifiers.write.get(), &QSocketNotifier::activated, this,
                    [this, socket] { process(ARES_SOCKET_BAD, socket); });
        }
        notifiers.read->setEnabled(readable);
        notifiers.write->setEnabled(writable);
    }

    void process(ares_socket_t readable, ares_socket_t writable) {
        ares_process_fd(channel, readable, writable);
        schedule();
    }

    void schedule() {
        timeval left{};
        if (!ares_timeout(channel, nullptr, &left)) {
            wait.stop();
            return;
        }
        wait.start(static_cast<int>(left.tv_sec * 1000 + left.tv_usec / 1000 + 1));
    }

    /// The answer is reported from the event loop, when the library is not running.
    void settle(quint64 number, const Answer& answer) {
        pending.at(number).deadline.reset();
        QTimer::singleShot(0, this, [this, number, answer] {
            const auto node = pending.extract(number);
            if (!node.empty()) node.mapped().done(answer);
        });
    }

    Times times;
    const ErrorReply onErrorReply;
    QByteArray servers;  ///< empty: the machine's
    std::unique_ptr<State> why;
    ares_channel channel = nullptr;
    bool ready = false;
    quint64 lastNumber = 0;
    QTimer wait;
    std::map<quint64, Pending> pending;
    std::map<ares_socket_t, Notifiers> sockets;
};

Resolver::Resolver(const Times& times)
    : m_state(std::make_unique<State>(times, State::ErrorReply::NextServer)) {}
Resolver::~Resolver() = default;

void Resolver::setServers(const QByteArray& servers) {
    m_state->setServers(servers);
}

void Resolver::ask(const Question& question, Done done) {
    m_state->ask(question, std::move(done));
}

void Resolver::cancel() {
    m_state->cancel();
}

}  // namespace dns
