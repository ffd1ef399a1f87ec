// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace ui {

/// A list on a tool bar. Its text is free: it may show what is not in the list, and what is typed counts from
/// Return on. Only the user's choice starts the command; setText() does not.
class ComboTool : public QComboBox {
    Q_OBJECT

  public:
    ComboTool(const QString& name, const QString& description, int width);

    QString Text() const { return currentText(); }
    void setText(const QString& text) { setEditText(text); }
    const QString& Description() const { return m_description; }
    void setDescription(const QString& description);
    void AddItem(const QString& text) { addItem(text); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void chosen();

  private:
    QString m_description;
};

/// A field on a tool bar with a label before it, as wide as the bar allows.
class EditTool : public QWidget {
    Q_OBJECT

  public:
    EditTool(const QString& name, const QString& label, const QString& description);

    QString Text() const { return m_edit->text(); }
    void setText(const QString& text) { m_edit->setText(text); }
    QString Label() const { return m_label->text(); }
    void setLabel(const QString& label);
    const QString& Description() const { return m_description; }
    void setDescription(const QString& description);

  Q_SIGNALS:
    /// By the user; setText() is silent.
    void textEdited();

  private:
    QLabel* m_label;
    QLineEdit* m_edit;
    QString m_description;
};

}  // namespace ui
