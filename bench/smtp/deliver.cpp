// SPDX-License-Identifier: GPL-3.0-or-later
// deliver <host> <port> <messages> <octets> [<attachment> <support log> | <book>]: composes personalised
// messages of about that size, the attachment not counted, and delivers them one after the other over one
// delivery control, as the send window does. <book> is the folder of a book of outcomes, ending in "/"; "-"
// is none, and the messages have numbers all the same. Prints one line of JSON.
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QElapsedTimer>

#include "modules/send/Personalizza.h"
#include "platform/mail/DeliveryControl.h"

namespace {

/// A newsletter of about `octets` as HTML, with a place for the recipient's name in each paragraph.
QString newsletter(qsizetype octets) {
    QString html = QStringLiteral("<html><head><title>Notizie</title></head><body>\n");
    while (html.size() < octets)
        html +=
            QStringLiteral("<p>Gentile :::nom:::, l'offerta di questa settimana vale in ogni negozio.</p>\n");
    return html + QStringLiteral("</body></html>");
}

class Run : public QObject {
  public:
    Run(const QString& host, quint16 port, int messages, qsizetype octets) : m_left(messages) {
        m_smtp.ServerName = host;
        m_smtp.ServerPort = port;
        m_smtp.FromName = QStringLiteral("Notizie");
        m_smtp.FromAddress = QStringLiteral("notizie@mittente.example");
        // The text part takes a share of the whole.
        m_html = newsletter(octets * 85 / 100);
        m_text = QStringLiteral("Gentile :::nom:::, le offerte di questa settimana.\n")
                     .repeated(int(octets / 500));
        m_smtp.TemplateHtml = m_html;
        connect(&m_smtp, &mail::DeliveryControl::SendDone, this, &Run::next);
        connect(&m_smtp, &mail::DeliveryControl::SendError, this, [](int code, const QString& text) {
            std::fprintf(stderr, "%d %s\n", code, qPrintable(text));
            QCoreApplication::exit(1);
        });
        m_clock.start();
    }

    void attach(const QString& path) { m_smtp.Attachments.Add(path, QStringLiteral("allegato.pdf")); }
    void keepLog(const QString& path) {
        m_smtp.LogFile = path;
        m_smtp.LogEnabled = true;
    }

    void keepBook(const QString& folder) {
        if (folder != u"-") m_smtp.BookFolder = folder;
        m_numbered = true;
        m_smtp.BeginRun();
    }

    void next() {
        if (m_left-- == 0) {
            QCoreApplication::quit();
            return;
        }
        const QString name = QStringLiteral("Rossi %1").arg(m_left);
        ValoriSegnaposto values;
        values[1] = name;  // of the column "nom"
        m_smtp.BodyHtml = m_splitHtml.Personalizza(m_html, values);
        m_smtp.BodyText = m_splitText.Personalizza(m_text, values);
        m_smtp.Subject = m_splitSubject.Personalizza(QStringLiteral("Notizie per :::nom:::"), values);
        m_smtp.ToName = name;
        m_smtp.ToAddress = QStringLiteral("rossi%1@cliente.example").arg(m_left);
        if (m_numbered) {
            m_smtp.BeginTick();
            m_smtp.RecipientNumber = m_left;
        }
        m_smtp.Send();
    }

    double seconds() const { return double(m_clock.nsecsElapsed()) / 1e9; }
    double processorSeconds() const { return usedSoFar() - m_usedBefore; }

  private:
    /// Processor time of this process.
    static double usedSoFar() {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
               double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
    }

    mail::DeliveryControl m_smtp;
    QString m_html;
    QString m_text;
    ModelloDiviso m_splitHtml, m_splitText, m_splitSubject;
    QElapsedTimer m_clock;
    double m_usedBefore = usedSoFar();
    int m_left;
    bool m_numbered = false;
};

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc < 5 || argc > 7) {
        std::fprintf(stderr,
                     "deliver <host> <port> <messages> <octets> [<attachment> <support log> | <book>]\n");
        return 2;
    }
    const int messages = std::atoi(argv[3]);
    Run run(QString::fromLocal8Bit(argv[1]), quint16(std::atoi(argv[2])), messages, std::atoi(argv[4]));
    if (argc == 6) run.keepBook(QString::fromLocal8Bit(argv[5]));
    if (argc == 7) {
        run.attach(QString::fromLocal8Bit(argv[5]));
        run.keepLog(QString::fromLocal8Bit(argv[6]));
    }
    run.next();
    const int status = application.exec();
    const double seconds = run.seconds();
    std::printf(
        "{\"messages\": %d, \"seconds\": %.6f, \"perSecond\": %.1f, \"processorMicroseconds\": %.1f}\n",
        messages, seconds, messages / seconds, run.processorSeconds() * 1e6 / messages);
    return status;
}
