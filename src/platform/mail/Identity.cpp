// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/Identity.h"

#include <array>
#include <cstdlib>
#include <QRandomGenerator>

namespace mail {

QByteArray dateText(const QDateTime& when) {
    static constexpr std::array<const char*, 7> days = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    static constexpr std::array<const char*, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                           "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const QDate date = when.date();
    const QTime time = when.time();
    const int zone = when.offsetFromUtc() / 60;
    return QByteArray(QString::asprintf("%s, %d %s %04d %02d:%02d:%02d %c%02d%02d",
                                        days[static_cast<std::size_t>(date.dayOfWeek() - 1)], date.day(),
                                        months[static_cast<std::size_t>(date.month() - 1)], date.year(),
                                        time.hour(), time.minute(), time.second(), zone < 0 ? '-' : '+',
                                        std::abs(zone) / 60, std::abs(zone) % 60)
                          .toLatin1());
}

const QByteArray& DateLine::text(const QDateTime& when) {
    const qint64 second = when.toSecsSinceEpoch();
    const int zone = when.offsetFromUtc();
    if (second != m_second || zone != m_zone || m_text.isEmpty()) m_text = dateText(when);
    m_second = second;
    m_zone = zone;
    return m_text;
}

UniqueWords::UniqueWords() : m_random(QByteArray::number(QRandomGenerator::system()->generate64(), 36)) {}

QByteArray UniqueWords::next(const QDateTime& now) {
    return QByteArray::number(now.toMSecsSinceEpoch(), 36) + '.' + m_random + '.' +
           QByteArray::number(++m_count, 36);
}

}  // namespace mail
