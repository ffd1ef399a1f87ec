// SPDX-License-Identifier: GPL-3.0-or-later
// Name servers that misbehave: silent, late, lying about ids, questions, ports, counts and lengths, truncated
// with and without TCP, with names and aliases in a circle. Every second case asks by the resolver, the
// others by the look-up of the recipient's server. Each question has one answer, and in time; what only a
// liar said is never accepted, a valid answer is the result.
//
//     torture_names SEED CASES [FIRST]
#include <sys/resource.h>
#include <QCoreApplication>

#include "modules/core/Fallimento.h"
#include "modules/send/bMXQuery.h"
#include "platform/dns/ReplyReader.h"
#include "platform/dns/Resolver.h"
#include "torture/Crowd.h"
#include "torture/OddNames.h"
#include "torture/Tally.h"

namespace {

using dns::Answer;
using Kind = OddNames::Kind;

constexpr dns::Resolver::Times times{.tryMs = 150, .tries = 2, .deadlineMs = 700};
constexpr size_t casesTogether = 20;
constexpr long longestTicks = 80;  // 4 s of a question that ends after 0.7
constexpr long mostKiB = 200 * 1024;

struct Sum {
    unsigned seed;
    const OddNames* server;
    Tally tally = {};
    long answered = 0;

    void wrong(long& count, int number, const char* what) const {
        ++count;
        tally.tell("seed %u, case %d (%s): %s", seed, number,
                   OddNames::nameOf(OddNames::kindOf(seed, number)), what);
    }
};

QByteArray questionOf(int number) {
    return "c" + QByteArray::number(number) + ".example";
}

/// Whether an answer with records is all that the server allows.
bool isSound(Kind kind) {
    return kind == Kind::Good || kind == Kind::Thrice;
}

class AskedCase : public CrowdedCase {
    Q_OBJECT
  public:
    AskedCase(int number, Sum& sum) : m_number(number), m_sum(sum), m_resolver(times) {
        m_resolver.setServers("127.0.0.1:" + QByteArray::number(sum.server->port()));
        constexpr dns::Type types[] = {dns::Type::A, dns::Type::Aaaa, dns::Type::Mx, dns::Type::Txt,
                                       dns::Type::Ptr};
        m_resolver.ask({questionOf(number), types[number / 2 % 5]},
                       [this](const Answer& answer) { hear(answer); });
    }
    void tick() override {
        ++m_ticks;
        // an answer is not the end: a second one may follow
        if (m_answers > 0 && m_ticks > m_answeredAt + 2) {
            if (m_answers > 1) m_sum.wrong(m_sum.tally.damaged, m_number, "a second answer");
            end();
        } else if (m_ticks > longestTicks) {
            m_sum.wrong(m_sum.tally.damaged, m_number, "no answer in time");
            end();
        }
    }

  private:
    void hear(const Answer& answer) {
        ++m_answers;
        m_answeredAt = m_ticks;
        const Kind kind = OddNames::kindOf(m_sum.seed, m_number);
        const qsizetype records =
            answer.addresses.size() + answer.texts.size() + answer.exchangers.size() + answer.names.size();
        if ((answer.kind == Answer::Kind::Records) != (records > 0) || records > dns::mostRecords)
            m_sum.wrong(m_sum.tally.damaged, m_number, "kind and records disagree");
        if (answer.addresses.contains(QHostAddress(QString::fromLatin1(OddNames::lie))) ||
            ((kind == Kind::WrongId || kind == Kind::WrongQuestion || kind == Kind::NoReply) && records > 0))
            m_sum.wrong(m_sum.tally.damaged, m_number, "a lie was believed");
        if (isSound(kind) && records == 0 && answer.why != QLatin1String("il DNS non risponde"))
            m_sum.wrong(m_sum.tally.lost, m_number, "a sound reply was not taken");
        if (records > 0) ++m_sum.answered;
    }
    void end() {
        ++m_sum.tally.cases;
        Q_EMIT ended();
    }

    const int m_number;
    Sum& m_sum;
    int m_answers = 0;
    long m_ticks = 0;
    long m_answeredAt = 0;
    dns::Resolver m_resolver;
};

/// The look-up of the recipient's server, which blocks.
void lookUp(int number, Sum& sum) {
    ++sum.tally.cases;
    dnsServers = QStringList{QStringLiteral("127.0.0.1")};
    dnsCount = 1;
    dnsDomain = dnsBaseDomain = QStringLiteral("altro.test");
    reteDNS.porta = sum.server->port();
    reteDNS.attesa = std::chrono::milliseconds(100);
    try {
        const QString best = MXQuery(QString::fromLatin1(questionOf(number)));
        if (best != bestMX || (mxCount != 0 && mxCount != static_cast<int>(mxList.size())))
            sum.wrong(sum.tally.damaged, number, "result and list disagree");
        for (const MXRecord& record : mxList)
            if (!best.isEmpty() && record.preference < mxList.front().preference)
                sum.wrong(sum.tally.damaged, number, "not the lowest preference");
        if (isSound(OddNames::kindOf(sum.seed, number)) && !best.startsWith(QLatin1String("mx0.example")))
            sum.wrong(sum.tally.lost, number, "a sound reply was not taken");
        if (!best.isEmpty()) ++sum.answered;
    } catch (const Fallimento&) {
        // a wait of 100 ms may end before the server's turn comes
        if (isSound(OddNames::kindOf(sum.seed, number)) && motivoMX != MotivoMX::Silenzio)
            sum.wrong(sum.tally.lost, number, "a sound reply was not taken");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const Wanted wanted(argc, argv, Wanted::Cases::StandAlone);
    const OddNames server(wanted.seed);
    Sum sum{wanted.seed, &server};
    const int asked = wanted.cases / 2;
    playCrowd(wanted.first, asked, casesTogether,
              [&](int number) { return std::make_unique<AskedCase>(number, sum); });
    for (int number = wanted.first + asked; number < wanted.first + wanted.cases; ++number)
        lookUp(number, sum);
    struct rusage used {};
    ::getrusage(RUSAGE_SELF, &used);
    if (!sanitized && used.ru_maxrss > mostKiB) {
        ++sum.tally.damaged;
        sum.tally.tell("seed %u: %ld KiB were used", wanted.seed, used.ru_maxrss);
    }
    sum.tally.survived = sum.tally.cases - sum.tally.damaged - sum.tally.lost;
    sum.tally.more = std::to_string(sum.answered) + " with records, at most " +
                     std::to_string(used.ru_maxrss / 1024) + " MiB";
    return sum.tally.report("names", wanted.seed);
}

#include "names.moc"
