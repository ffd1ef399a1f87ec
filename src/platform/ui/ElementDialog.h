// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QDialog>

#include "platform/html/HtmlView.h"

class QComboBox;
class QTableWidget;

namespace ui {

/// A dialog for the attributes of an element, or of one of those around it: names and values. A name
/// that is emptied takes its attribute away; the last row takes a new one.
class ElementDialog : public QDialog {
    Q_OBJECT

  public:
    /// The elements from the innermost outwards; there is at least one.
    ElementDialog(QWidget* parent, QList<HtmlView::Element> elements);

    /// The new attributes of the elements that were changed, by their place in the list.
    std::map<int, HtmlView::Attributes> changes() const;

  private:
    void fill(int level);
    void take();

    const QList<HtmlView::Element> m_before;
    QList<HtmlView::Element> m_elements;
    int m_level = 0;
    QComboBox* m_which;
    QTableWidget* m_list;
};

}  // namespace ui
