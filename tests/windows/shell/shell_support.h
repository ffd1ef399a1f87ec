// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "modules/core/bGlobal.h"
#include "modules/lang/bVAR.h"
#include "windows/core/Evento.h"
#include "windows/entry/Finestre.h"
#include "windows/store/griglia_stage.h"

namespace testing_support {

inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

/// Replaces the desktop's opener by one that notes its arguments.
class Opener {
  public:
    Opener() : m_path(qgetenv("PATH")) {
        const QString opener = m_folder.filePath("xdg-open");
        const QByteArray target = QFile::encodeName(log());
        writeFile(opener, "#!/bin/sh\necho \"$1\" > \"" + target + ".new\"\nmv \"" + target + ".new\" \"" +
                              target + "\"\n");
        if (!QFile::setPermissions(opener, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            qFatal("cannot make the opener a program");
        qputenv("PATH", QFile::encodeName(m_folder.path()) + ":" + m_path);
    }
    ~Opener() { qputenv("PATH", m_path); }

    /// What was opened; empty when nothing was within a minute.
    QString opened() const {
        return QTest::qWaitFor([this] { return QFile::exists(log()); }, 60000)
                   ? QString::fromUtf8(readFile(log())).trimmed()
                   : QString();
    }
    bool used() const { return QFile::exists(log()); }

  private:
    QString log() const { return m_folder.filePath("log"); }

    QTemporaryDir m_folder;
    QByteArray m_path;
};

/// Hides the next modal window as soon as it is shown; calls `look` before.
inline void closeModalWindow(std::function<void(QWidget&)> look = {}) {
    auto* timer = new QTimer(qApp);
    timer->callOnTimeout([timer, look = std::move(look)] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window) return;
        timer->deleteLater();
        timer->stop();
        if (look) look(*window);
        window->hide();
    });
    timer->start(0);
}

}  // namespace testing_support
