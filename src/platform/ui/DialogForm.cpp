// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/DialogForm.h"

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/ui/Controls.h"
#include "platform/ui/LineEdit.h"

namespace ui {

QLineEdit* textField(const QString& name, QWidget* parent) {
    auto* field = named(new LineEdit(parent), name);
    field->setMinimumSize(scaledToFont(*field, fieldWidth), fieldHeight);
    return field;
}

QComboBox* choiceField(const QString& name, const QStringList& entries, QWidget* parent) {
    auto* field = named(new QComboBox(parent), name);
    field->setMinimumHeight(fieldHeight);
    field->addItems(entries);
    return field;
}

DialogForm::DialogForm(QDialog* dialog)
    : m_dialog(dialog), m_fields(new QGridLayout), m_buttons(new QHBoxLayout) {
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(windowMargin, windowMargin, windowMargin, windowMargin);
    column->setSpacing(windowMargin);
    column->addLayout(m_fields, 1);
    column->addLayout(m_buttons);
    m_fields->setSpacing(controlSpacing);
    m_fields->setColumnStretch(1, 1);
    m_buttons->setSpacing(controlSpacing);
    m_buttons->addStretch();
}

void DialogForm::addField(const QString& label, QWidget* field) {
    const int row = m_fields->rowCount();
    if (!label.isEmpty()) {
        auto* text = new QLabel(label, m_dialog);
        bindLabel(text, field);
        m_fields->addWidget(text, row, 0);
    }
    m_fields->addWidget(field, row, 1);
}

void DialogForm::addBlock(QWidget* block) {
    const int row = m_fields->rowCount();
    m_fields->addWidget(block, row, 0, 1, 2);
    m_fields->setRowStretch(row, 1);
}

QPushButton* DialogForm::addButton(const QString& caption, const QString& name) {
    QPushButton* button = commandButton(caption, name, m_dialog);
    m_buttons->addWidget(button);
    return button;
}

void DialogForm::finish(QPushButton* byReturn, int width) {
    byReturn->setDefault(true);
    m_dialog->resize(QSize(width, 0).expandedTo(m_dialog->sizeHint()));
}

}  // namespace ui
