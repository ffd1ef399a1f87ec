// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QPair>

#include "platform/html/HtmlView.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace ui {

/// A dialog for the target of a link: a web address or a mail link, with texts offered to be put into it, and
/// whether it is the one by which recipients sign off.
class LinkDialog : public QDialog {
    Q_OBJECT

  public:
    /// Caption and text of what is offered.
    using Offers = QList<QPair<QString, QString>>;

    /// `link` is the present one, without an address for a new one. With `withText` the words of the link are
    /// asked for as well.
    LinkDialog(QWidget* parent, const HtmlView::LinkInfo& link, bool withText, const Offers& offers);

    /// Without an address where the link is to be taken away.
    HtmlView::LinkInfo link() const;
    QString text() const;

  private:
    QString address() const;

    QComboBox* m_kind;
    QLineEdit* m_address;
    QCheckBox* m_unsubscribes;
    QLineEdit* m_text;
};

}  // namespace ui
