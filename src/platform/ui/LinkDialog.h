#pragma once

#include <QDialog>
#include <QList>
#include <QPair>

class QComboBox;
class QLineEdit;

namespace ui {

/// Asks for the address of a link: a web address or a mail link, with texts offered to be put into it.
class LinkDialog : public QDialog {
    Q_OBJECT

  public:
    /// Caption and text of what is offered.
    using Offers = QList<QPair<QString, QString>>;

    /// `address` is that of the link at hand, empty for a new one. With `withText` the words of the link are
    /// asked for as well.
    LinkDialog(QWidget* parent, const QString& address, bool withText, const Offers& offers);

    /// Empty where the link is to be taken away.
    QString address() const;
    QString text() const;

  private:
    QComboBox* m_kind;
    QLineEdit* m_address;
    QLineEdit* m_text;
};

}  // namespace ui
