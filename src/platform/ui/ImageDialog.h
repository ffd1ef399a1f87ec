// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include "platform/html/HtmlView.h"

class QComboBox;
class QLineEdit;

namespace ui {

/// A dialog that asks for an image: a file or an address, its alternative text, size and alignment.
class ImageDialog : public QDialog {
    Q_OBJECT

  public:
    ImageDialog(QWidget* parent, const HtmlView::ImageInfo& image);

    HtmlView::ImageInfo image() const;

  private:
    void pickFile();

    QLineEdit* m_source;
    QLineEdit* m_text;
    QLineEdit* m_width;
    QLineEdit* m_height;
    QComboBox* m_align;
};

}  // namespace ui
