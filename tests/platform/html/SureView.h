// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include "platform/html/HtmlView.h"

/// The result of a view's call; ends the test where the browser did not answer.
template <class T>
T sure(const Result<T>& answer) {
    if (!answer.ok()) qFatal("%s", qUtf8Printable(answer.status().text()));
    return answer.value();
}

inline void sure(const Status& done) {
    if (!done.ok()) qFatal("%s", qUtf8Printable(done.text()));
}

/// A view whose browser answers, for tests that are not about one that does not.
class SureView : public HtmlView {
  public:
    using HtmlView::HtmlView;

    QString documentHTML() const { return sure(HtmlView::documentHTML()); }
    void setDocumentHTML(const QString& html) { sure(HtmlView::setDocumentHTML(html)); }
    bool insertHTML(const QString& fragment) { return sure(HtmlView::insertHTML(fragment)); }
    QVariant execCommand(int command, const QString& value = {}) {
        return sure(HtmlView::execCommand(command, value));
    }
    QString selectedText() const { return sure(HtmlView::selectedText()); }
    bool find(const QString& text, unsigned flags = 0) { return sure(HtmlView::find(text, flags)); }
    std::optional<ImageInfo> selectedImage() const { return sure(HtmlView::selectedImage()); }
    bool insertImage(const ImageInfo& image) { return sure(HtmlView::insertImage(image)); }
    LinkInfo link() const { return sure(HtmlView::link()); }
    bool setLink(const LinkInfo& link, const QString& text = {}) {
        return sure(HtmlView::setLink(link, text));
    }
    QList<Element> elementsAtCaret() const { return sure(HtmlView::elementsAtCaret()); }
    bool setElementAttributes(int level, const Attributes& attributes) {
        return sure(HtmlView::setElementAttributes(level, attributes));
    }
    bool print(bool prompt, const QString& title = {}) { return sure(HtmlView::print(prompt, title)); }
    QString bodyAttribute(const QString& name) const { return sure(HtmlView::bodyAttribute(name)); }
    void setBodyAttribute(const QString& name, const QString& value) {
        sure(HtmlView::setBodyAttribute(name, value));
    }
    void removeBodyAttribute(const QString& name) { sure(HtmlView::removeBodyAttribute(name)); }
    QString pageColor(PageColor color) const { return sure(HtmlView::pageColor(color)); }
    void setPageColor(PageColor color, const QString& value) { sure(HtmlView::setPageColor(color, value)); }
};
