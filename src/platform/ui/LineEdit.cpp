// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/LineEdit.h"

#include <QRegularExpression>
#include <QValidator>

namespace ui {

namespace {

/// Takes every text, after it made one line of it.
class OneLine : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& position) const override {
        static const QRegularExpression breaks(
            QStringLiteral("\\r\\n|[\\n\\r\\x{B}\\x{C}\\x{85}\\x{2028}\\x{2029}]"));
        if (!text.contains(breaks)) return Acceptable;
        position = static_cast<int>(text.left(position).replace(breaks, QStringLiteral(" ")).size());
        text.replace(breaks, QStringLiteral(" "));
        return Acceptable;
    }
};

}  // namespace

LineEdit::LineEdit(const QString& text, QWidget* parent) : QLineEdit(parent) {
    keepToOneLine(*this);
    setText(text);
}

void LineEdit::keepToOneLine(QLineEdit& box) {
    box.setValidator(new OneLine(&box));
}

}  // namespace ui
