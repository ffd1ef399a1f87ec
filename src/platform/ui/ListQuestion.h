// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

class QCheckBox;

namespace ui {

/// A question about a list of items: the text, the list, a check box by which the answer is kept, "Sì" and
/// "No". Return and Esc answer No; accept() is Yes.
class ListQuestion : public QDialog {
    Q_OBJECT

  public:
    /// The question. Texts are plain whatever they contain.
    struct Content {
        QString title;
        QString text;             ///< lines separated by CR LF
        QStringList heads;        ///< of the columns
        QList<QStringList> rows;  ///< a text for each column
        QString remember;         ///< caption of the check box; empty: there is none
    };

    ListQuestion(QWidget* parent, const Content& content);

    /// The answer is to be kept.
    bool remembers() const;

  private:
    QCheckBox* m_remember = nullptr;
};

}  // namespace ui
