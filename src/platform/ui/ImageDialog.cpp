// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ImageDialog.h"

#include <array>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "platform/text/Words.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"
#include "platform/ui/FileDialog.h"

namespace ui {

namespace {

/// In the order of the list.
constexpr std::array alignments{"", "left", "right", "top", "middle", "bottom"};

QLineEdit* sizeField(const QString& name, const QString& size, QWidget* parent) {
    QLineEdit* field = textField(name, parent);
    static const QRegularExpression pixelsOrShare("[0-9]{0,5}%?");
    field->setValidator(new QRegularExpressionValidator(pixelsOrShare, field));
    field->setPlaceholderText(Words::tr("pixel o %"));
    field->setText(size);
    return field;
}

}  // namespace

ImageDialog::ImageDialog(QWidget* parent, const HtmlView::ImageInfo& image)
    : QDialog(parent),
      m_source(textField("txtSource", this)),
      m_text(textField("txtAlternative", this)),
      m_width(sizeField("txtWidth", image.width, this)),
      m_height(sizeField("txtHeight", image.height, this)),
      m_align(choiceField("cmbAlign",
                          {Words::tr("Nessuno"), Words::tr("A sinistra"), Words::tr("A destra"),
                           Words::tr("In alto"), Words::tr("Al centro"), Words::tr("In basso")},
                          this)) {
    setObjectName("imageDialog");
    setWindowTitle(Words::tr("Immagine"));
    m_source->setText(image.source);
    m_text->setText(image.alternativeText);
    for (std::size_t i = 0; i < alignments.size(); ++i)
        if (image.align.compare(QLatin1String(alignments[i]), Qt::CaseInsensitive) == 0)
            m_align->setCurrentIndex(static_cast<int>(i));

    auto* source = new QWidget(this);
    auto* row = new QHBoxLayout(source);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(controlSpacing);
    row->addWidget(m_source, 1);
    QPushButton* browse = commandButton(Words::tr("S&foglia..."), "cmdBrowse", source);
    row->addWidget(browse);
    source->setFocusProxy(m_source);
    // Read, and reached, before the fields below it.
    source->lower();
    setTabOrder(m_source, browse);
    setTabOrder(browse, m_text);
    connect(browse, &QPushButton::clicked, this, &ImageDialog::pickFile);

    DialogForm form(this);
    form.addField(Words::tr("&File o indirizzo:"), source);
    m_source->setAccessibleName(Words::tr("File o indirizzo"));
    form.addField(Words::tr("&Testo alternativo:"), m_text);
    form.addField(Words::tr("&Larghezza:"), m_width);
    form.addField(Words::tr("A&ltezza:"), m_height);
    form.addField(Words::tr("Alli&neamento:"), m_align);
    QPushButton* ok = form.addButton(Words::tr("&OK"), "cmdOk");
    QPushButton* cancel = form.addButton(Words::tr("&Annulla"), "cmdCancel");
    form.finish(ok, 460);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    const auto enable = [this, ok] { ok->setEnabled(!m_source->text().trimmed().isEmpty()); };
    connect(m_source, &QLineEdit::textChanged, this, enable);
    enable();
}

HtmlView::ImageInfo ImageDialog::image() const {
    return {m_source->text().trimmed(), m_text->text(), m_width->text(), m_height->text(),
            QString::fromLatin1(alignments[static_cast<std::size_t>(m_align->currentIndex())])};
}

void ImageDialog::pickFile() {
    const auto path =
        FileDialog::open(Words::tr("Inserisci immagine"),
                         Words::tr("Immagini|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tutti i file|*"));
    if (path) m_source->setText(*path);
}

}  // namespace ui
