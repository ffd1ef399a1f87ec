// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of a small dialog: fields with labels, and a row of buttons.
#pragma once

#include <QString>
#include <QStringList>

class QComboBox;
class QDialog;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace ui {

QLineEdit* textField(const QString& name, QWidget* parent);
/// A list that cannot be typed into.
QComboBox* choiceField(const QString& name, const QStringList& entries, QWidget* parent);

/// A small dialog's layout: fields in one column with their labels to the left, the buttons in a row below.
class DialogForm {
  public:
    explicit DialogForm(QDialog* dialog);
    DialogForm(const DialogForm&) = delete;
    DialogForm& operator=(const DialogForm&) = delete;

    /// The label names the field for assistive programs; without a text there is none.
    void addField(const QString& label, QWidget* field);
    /// A widget of its own width below the fields, which takes the height that is left.
    void addBlock(QWidget* block);
    QPushButton* addButton(const QString& caption, const QString& name);
    /// `byReturn` is the button that Return presses. The dialog opens at this width, or wider.
    void finish(QPushButton* byReturn, int width);

  private:
    QDialog* m_dialog;
    QGridLayout* m_fields;
    QHBoxLayout* m_buttons;
};

}  // namespace ui
