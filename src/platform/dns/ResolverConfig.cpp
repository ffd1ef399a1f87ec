// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dns/ResolverConfig.h"

#include "platform/dns/HostLookup.h"
#include "platform/text/TextFile.h"

namespace dns {

namespace {

// The words of a line that starts with a keyword in its first column; none for blank lines and comments.
QStringList wordsOf(const QString& line) {
    if (line.startsWith(u' ') || line.startsWith(u'\t') || line.startsWith(u'#') || line.startsWith(u';')) {
        return {};
    }
    return QString(line).replace(u'\t', u' ').split(u' ', Qt::SkipEmptyParts);
}

QString withoutFinalPoint(QString name) {
    if (name.endsWith(u'.')) name.chop(1);
    return name;
}

}  // namespace

ResolverConfig readResolverConfig(const QString& path) {
    ResolverConfig config;
    text::LineReader reader;
    if (!reader.open(path, text::LineEnds::Any).ok()) return config;
    QString search;
    for (QString line; reader.nextLine(line);) {
        const QStringList words = wordsOf(line);
        if (words.size() < 2) continue;
        const QString& value = words.at(1);
        if (words.at(0) == QLatin1String("nameserver")) {
            if (addressFromText(value)) config.servers.append(value);
        } else if (words.at(0) == QLatin1String("domain")) {
            config.domain = withoutFinalPoint(value);
        } else if (words.at(0) == QLatin1String("search")) {
            search = withoutFinalPoint(value);
        }
    }
    if (config.domain.isEmpty()) config.domain = search;
    return config;
}

}  // namespace dns
