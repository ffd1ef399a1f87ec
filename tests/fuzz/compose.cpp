// SPDX-License-Identifier: GPL-3.0-or-later
// What users and databases put into a message: the values, separated by FF. In a value FE and two octets are
// one UTF-16 unit, so that broken characters are possible. The first octet says what else the message has.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <QFile>
#include <QTemporaryDir>

#include "platform/mail/Composer.h"
#include "platform/mail/wire_reader.h"
#include "support/MemoryFolder.h"
#include "support/WholeText.h"

namespace {

enum Carries : uint8_t { Image = 1, SecondAttachment = 2, HighPriority = 4, LowPriority = 8 };

constexpr qsizetype valueCount = 9;
const QByteArray png("\x89PNG\r\n\x1A\n........", 16);
const QByteArray fileContent("\0\r\n.\r\nFrom x\xFF", 13);

struct Files {
    Files() {
        write(image, png);
        write(attachment, fileContent);
    }
    static void write(const QString& path, const QByteArray& content) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) std::abort();
    }
    QTemporaryDir folder{memoryFolderPattern()};
    const QString image = folder.filePath(QStringLiteral("logo.png"));
    const QString attachment = folder.filePath(QStringLiteral("dati"));
};

void require(bool condition, const char* what, const QByteArray& data = {}) {
    if (condition) return;
    std::fprintf(stderr, "%s\n%s\n", what, data.left(4000).constData());
    std::abort();
}

QString valueFrom(const QByteArray& octets) {
    QString value;
    for (qsizetype at = 0; at < octets.size();) {
        const qsizetype unit = octets.indexOf('\xFE', at);
        value += QString::fromUtf8(octets.mid(at, unit < 0 ? -1 : unit - at));
        if (unit < 0) break;
        if (unit + 2 < octets.size()) value += QChar(uchar(octets[unit + 1]) << 8 | uchar(octets[unit + 2]));
        at = unit + 3;
    }
    return value;
}

mail::MessageData messageFrom(const QByteArray& bytes, const Files& files) {
    const auto carries = bytes.isEmpty() ? uint8_t(0) : uint8_t(bytes[0]);
    const QByteArrayList values = bytes.mid(1).split('\xFF');
    const auto value = [&](qsizetype i) { return valueFrom(values.value(i)); };
    mail::MessageData message;
    message.FromName = value(0);
    message.FromAddress = value(1);
    message.ToName = value(2);
    message.ToAddress = value(3);
    message.Subject = value(4);
    message.BodyText = value(5);
    message.BodyHtml = value(6);
    message.UnsubscribeLink = value(7);
    if (values.size() >= valueCount) message.Attachments = {{files.attachment, value(8)}};
    if ((carries & SecondAttachment) != 0) message.Attachments.Add(files.attachment, value(4));
    if ((carries & Image) != 0) {
        message.TemplateHtml = "<img src='" + files.image + "'>";
        message.BodyHtml.prepend(message.TemplateHtml);
    }
    message.Priority = (carries & HighPriority) != 0 ? 1 : (carries & LowPriority) != 0 ? 5 : 3;
    return message;
}

// A good address replaces one that is refused, so that the other values are tested.
Result<mail::ComposedMessage> composed(mail::Composer& composer, mail::MessageData& message) {
    auto result = composer.compose(message);
    if (result.ok()) return result;
    require(result.status().code() == ErrorCode::TypeMismatch, "a failure that is not an address");
    const QString good = QStringLiteral("rossi@example.it");
    if (!mail::parseAddrSpec(message.FromAddress).ok()) message.FromAddress = good;
    if (!mail::parseAddrSpec(message.ToAddress).ok()) message.ToAddress = good;
    return composer.compose(message);
}

QString inOneLine(QString text) {
    for (QChar& c : text) {
        if (c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0) || c == QChar(0x2028) ||
            c == QChar(0x2029))
            c = u' ';
    }
    return QString::fromUtf8(text.toUtf8());
}

void checkEnvelope(const mail::Mailbox& mailbox) {
    const QByteArray address = mailbox.address();
    require(std::none_of(address.begin(), address.end(), [](char c) { return uchar(c) < 0x20 || c == 0x7F; }),
            "a control character in a command", address);
    require(!mailbox.domain.contains(' ') && !mailbox.domain.contains('>'), "a domain that ends its path",
            address);
    require(mailbox.localPart.startsWith('"') ||
                (!mailbox.localPart.contains(' ') && !mailbox.localPart.contains('>')),
            "a local part that ends its path", address);
}

// As the transport does it: whatever the size of the pieces, no line is a lone point.
void checkTransport(const mail::MessageText& text, qsizetype limit) {
    QByteArray sent;
    mail::MessageText::Place place;
    while (!text.isEnd(place))
        sent += text.stuffed(place, limit);
    require(!sent.startsWith(".\r\n") && !sent.contains("\r\n.\r\n"), "a final point in the middle", sent);
    require(wire::unstuffed(sent) == wholeOf(text), "what is sent is not what was composed", sent);
}

void checkMessage(const mail::MessageData& given, const mail::ComposedMessage& message) {
    const QByteArray data = wholeOf(message.text);
    const wire::Message read = wire::read(data);
    require(read.complaints.isEmpty(), read.complaints.join('\n').toUtf8().constData(), data);
    require(read.from.address == message.from.address() && read.to.address == message.to.address(),
            "another address", data);
    require(read.subject == inOneLine(given.Subject), "another subject", data);
    require('<' + read.messageId + '>' == message.messageId, "another Message-ID", data);
    const auto carried = std::count_if(read.leaves.begin(), read.leaves.end(), [](const wire::Leaf& leaf) {
        return leaf.disposition == "attachment" && leaf.content == fileContent;
    });
    require(carried == given.Attachments.items().size(), "other attachments", data);
    const auto images = std::count_if(read.leaves.begin(), read.leaves.end(), [](const wire::Leaf& leaf) {
        return leaf.disposition == "inline" && leaf.content == png;
    });
    require(images <= (given.TemplateHtml.isEmpty() ? 0 : 1), "an image that the template does not name",
            data);
    const auto texts = std::count_if(read.leaves.begin(), read.leaves.end(), [](const wire::Leaf& leaf) {
        return leaf.disposition.isEmpty() && leaf.type.startsWith("text/");
    });
    require(texts >= 1 && texts <= 2 && texts + carried + images == qsizetype(read.leaves.size()),
            "a part that nobody put there", data);
    const bool ascii = std::all_of(data.begin(), data.end(), [](char c) { return uchar(c) < 0x80; });
    require(message.needsSmtputf8 || ascii, "8-bit text without need", data);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const Files files;
    static mail::Composer composer;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    mail::MessageData message = messageFrom(bytes, files);
    const auto result = composed(composer, message);
    require(result.ok(), "good addresses are refused");
    checkEnvelope(result.value().from);
    checkEnvelope(result.value().to);
    checkMessage(message, result.value());
    checkTransport(result.value().text, 1 + qsizetype(size) % 97);
    return 0;
}
