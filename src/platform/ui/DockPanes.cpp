// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DockPanes.h"

#include <QDockWidget>
#include <QFile>
#include <QMainWindow>
#include <QtEndian>

#include "platform/system/OwnFile.h"
#include "platform/text/Words.h"

namespace ui {

namespace {

// A layout file:
//   offset  size  meaning
//   0       8     "VSTLAY1" and a line feed
//   8       4     number of bytes of the arrangement, little-endian
//   12      2     checksum (qChecksum) of the arrangement, little-endian
//   14      ...   the arrangement as the toolkit returns it
constexpr QByteArrayView magic("VSTLAY1\n");
constexpr qsizetype headerSize = 14;
constexpr qsizetype largestFile = 64 * 1024;

Status damaged(const QString& path) {
    return {ErrorCode::UnrecognizedFormat,
            Words::tr("Il file \"%1\" non contiene una disposizione valida delle barre.").arg(path)};
}

/// The arrangement in a file; empty for what is no layout file.
QByteArray arrangementOf(const QByteArray& file) {
    if (file.size() < headerSize || file.size() > largestFile || !file.startsWith(magic)) return {};
    const auto* bytes = reinterpret_cast<const uchar*>(file.constData());
    const QByteArray arrangement = file.mid(headerSize);
    const bool whole = qFromLittleEndian<quint32>(bytes + 8) == static_cast<quint32>(arrangement.size()) &&
                       qFromLittleEndian<quint16>(bytes + 12) == qChecksum(arrangement);
    return whole ? arrangement : QByteArray();
}

}  // namespace

QString DockPane::Caption() const {
    return m_dock->windowTitle();
}

void DockPane::setCaption(const QString& caption) {
    m_dock->setWindowTitle(caption);
    m_dock->setAccessibleName(caption);
}

QWidget* DockPane::content() const {
    return m_dock->widget();
}

void DockPane::setContent(QWidget* content) {
    m_dock->setWidget(content);
}

void DockPanes::addPane(const QString& name, const QString& caption, Qt::DockWidgetArea area, int extent) {
    auto* dock = new QDockWidget(m_window);
    dock->setObjectName(name);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    m_window->addDockWidget(area, dock);
    const bool beside = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
    m_window->resizeDocks({dock}, {extent}, beside ? Qt::Horizontal : Qt::Vertical);
    m_panes.insert_or_assign(name, DockPane(dock)).first->second.setCaption(caption);
}

DockPane* DockPanes::DockWindows(const QString& name) {
    const auto found = m_panes.find(name);
    return found == m_panes.end() ? nullptr : &found->second;
}

Status DockPanes::saveLayout(const QString& path) const {
    const QByteArray arrangement = m_window->saveState();
    uchar numbers[headerSize - 8];
    qToLittleEndian(static_cast<quint32>(arrangement.size()), numbers);
    qToLittleEndian(qChecksum(arrangement), numbers + 4);
    const QByteArray head(reinterpret_cast<const char*>(numbers), sizeof numbers);
    if (sys::replaceOwnFile(path, magic.toByteArray() + head + arrangement).ok()) return {};
    return {ErrorCode::PathAccess, Words::tr("Impossibile scrivere il file \"%1\".").arg(path)};
}

Status DockPanes::loadLayout(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {ErrorCode::FileNotFound, Words::tr("Impossibile leggere il file \"%1\".").arg(path)};
    const QByteArray arrangement = arrangementOf(file.read(largestFile + 1));
    const QByteArray before = m_window->saveState();
    if (arrangement.isEmpty() || !m_window->restoreState(arrangement)) {
        m_window->restoreState(before);
        return damaged(path);
    }
    return {};
}

}  // namespace ui
