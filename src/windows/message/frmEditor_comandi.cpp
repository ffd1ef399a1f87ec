// SPDX-License-Identifier: GPL-3.0-or-later
// The one handler of all commands of the editor.
#include <algorithm>
#include <array>

#include "modules/core/Fallimento.h"
#include "modules/message/variabili.h"
#include "platform/text/Words.h"
#include "platform/ui/CommandBars.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/TabStrip.h"
#include "windows/message/frmAllegati.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmEditor_comandi.h"
#include "windows/message/frmPropBody.h"

namespace {

/// A command that inserts a text.
struct Frammento {
    const char* nome;
    const char* html;
};

constexpr std::array frammenti{
    Frammento{"cmdHR", "<HR>"},
    Frammento{"cmdTable",
              R"(<TABLE WIDTH="100%" BORDER="0" CELLSPACING="2" CELLPADDING="0"><TR><TD>Cella1</TD>)"
              R"(<TD>Cella2</TD><TD>Cella3</TD></TR></TABLE>)"},
    Frammento{"cmdModuliForm", R"(<FORM NAME="form1" METHOD="get" ACTION=""></FORM>)"},
    Frammento{"cmdModuliText", R"(<INPUT NAME="text1" TYPE="text" VALUE="" SIZE="20">)"},
    Frammento{"cmdModuliTextArea", R"(<TEXTAREA NAME="textarea1" COLS="40" ROWS="6"></TEXTAREA>)"},
    Frammento{"cmdModuliCheckBox", R"(<INPUT TYPE="checkbox" NAME="checkbox1" VALUE="checkbox">)"},
    Frammento{"cmdModuliRadioButton", R"(<INPUT TYPE="radio" NAME="radiobutton" VALUE="radiobutton">)"},
    Frammento{"cmdModuliList", R"(<SELECT NAME="select1" SIZE="6"><OPTION VALUE="1">valore1</OPTION>)"
                               R"(<OPTION VALUE="2">valore2</OPTION></SELECT>)"},
    Frammento{"cmdModuliListMenu", R"(<SELECT NAME="select1"><OPTION VALUE="1">valore1</OPTION>)"
                                   R"(<OPTION VALUE="2">valore2</OPTION></SELECT>)"},
    Frammento{"cmdModuliHidden", R"(<INPUT TYPE="hidden" NAME="hiddenField1">)"},
};

/// The row of a table that has the name; null for none.
template <class Tabella>
const typename Tabella::value_type* riga(const Tabella& tabella, const QString& nome,
                                         const char* Tabella::value_type::*colonna) {
    const auto trovata = std::find_if(tabella.begin(), tabella.end(),
                                      [&](const auto& r) { return nome == QLatin1String(r.*colonna); });
    return trovata == tabella.end() ? nullptr : &*trovata;
}

}  // namespace

// "cmdGiustify" is on the bar and has no branch: it does nothing.
void frmEditor::ComandoPremuto(const QString& nome) {
    ComandoDueViste(nome) || ComandoDesign(nome) || ComandoInserimento(nome) || ComandoInterruttore(nome) ||
        ComandoAllegati(nome) || ComandoFile(nome);
}

bool frmEditor::ComandoDueViste(const QString& nome) {
    const DueViste* comando = riga(comandiDueViste, nome, &DueViste::nome);
    if (!comando) return false;
    if (tb->currentIndex() == Modifica) EseguiDesign(comando->design);
    if (tb->currentIndex() == Origine) EseguiCodice(comando->codice);
    if (comando->segna) SegnaModificato();
    return true;
}

bool frmEditor::ComandoDesign(const QString& nome) {
    if (nome == "cmbFontName" || nome == "cmbFontSize") {
        EseguiDesign(nome == "cmbFontName" ? HtmlView::SetFontName : HtmlView::SetFontSize,
                     barre->GetComboBox(nome)->Text());
        if (tb->currentIndex() == Modifica) DHTML->setFocus();
        return true;
    }
    const SoloDesign* comando = riga(comandiDesign, nome, &SoloDesign::nome);
    if (comando) EseguiDesign(comando->numero);
    return comando;
}

bool frmEditor::ComandoInserimento(const QString& nome) {
    if (const Frammento* frammento = riga(frammenti, nome, &Frammento::nome))
        InserisciHTML(QString::fromLatin1(frammento->html));
    else if (const auto variabile = std::ranges::find(VariabiliMessaggio(), nome, &Variabile::comando);
             variabile != VariabiliMessaggio().end())
        InserisciHTML(variabile->testo);
    else
        return false;
    return true;
}

void frmEditor::InserisciHTML(const QString& testo) {
    // Without a selection nothing is inserted; the mark is set all the same.
    Riuscita(DHTML->insertHTML(testo).status());
    SegnaModificato();
}

bool frmEditor::ComandoInterruttore(const QString& nome) {
    if (nome == "cmdShowDetails" || nome == "cmdShowBorder") {
        ui::Command& strumento = *barre->GetToolButton(nome);
        strumento.setChecked(strumento.Checked() == 0 ? 1 : 0);
        const bool mostra = strumento.Checked() == 1;
        nome == "cmdShowDetails" ? DHTML->setShowDetails(mostra) : DHTML->setShowBorders(mostra);
    } else if (nome == "cmdPriBassa") {
        CambiaPriorita("cmdPriBassa", "cmdPriAlta");
    } else if (nome == "cmdPriAlta") {
        CambiaPriorita("cmdPriAlta", "cmdPriBassa");
    } else {
        return false;
    }
    return true;
}

void frmEditor::CambiaPriorita(const QString& scelta, const QString& altra) {
    ui::Command& strumento = *barre->GetToolButton(scelta);
    strumento.setChecked(strumento.Checked() == 0 ? 1 : 0);
    barre->GetToolButton(altra)->setChecked(0);
    SegnaModificato();
    DocumentoMutato();
}

bool frmEditor::ComandoAllegati(const QString& nome) {
    if (nome == "cmdAllegatiNew") {
        Prosegui prosegui;
        if (const auto percorso = ui::FileDialog::open("Inserisci allegato", "Tutti i file(*.*)|*.*"))
            if (prosegui([&] { Allegati().InsFile(*percorso); })) {
                propri << *percorso;
                DocumentoMutato();
            }
        // Also after a cancel.
        SegnaModificato();
    } else if (nome == "cmdAllegatiDel") {
        Allegati().TogliScelto();
        SegnaModificato();
        DocumentoMutato();
    } else {
        return false;
    }
    return true;
}

bool frmEditor::ComandoFile(const QString& nome) {
    if (nome == "cmdNewMess") {
        ChiediSalvataggio();
        NuovoMessaggio();
    } else if (nome == "cmdApriMess") {
        ChiediSalvataggio();
        ApriMessaggio();
    } else if (nome == "cmdEsci") {
        ChiediSalvataggio();
        ChiudiEditor();
    } else if (nome == "cmdSalva") {
        fileAperto ? SalvaMessaggio() : SalvaMessaggioCome();
    } else if (nome == "cmdSalvaAs") {
        SalvaMessaggioCome();
    } else if (nome == "cmdStampa") {
        const Result<bool> stampato = DHTML->print(true, barre->GetEdit("txtOggetto")->Text());
        if (!stampato.ok()) AvvisaVista(stampato.status(), Words::tr("Il messaggio non è stato stampato."));
    } else if (nome == "cmdProprieta") {
        frmPropBody& proprieta = vicini.PropBody();
        const Status presi = proprieta.PrendiValori();
        if (!presi.ok())
            AvvisaVista(presi, Words::tr("Riprova fra qualche istante."));
        else
            proprieta.exec();
    } else {
        return false;
    }
    return true;
}

void frmEditor::EseguiDesign(int numero, const QString& valore) {
    switch (numero) {
        case HtmlView::Image:
            DialogoImmagine();
            break;
        case HtmlView::Hyperlink:
            DialogoCollegamento();
            break;
        case HtmlView::Properties:
            DialogoProprietaElemento();
            break;
        case HtmlView::FindText:
            Trova();
            break;
        default:
            Riuscita(DHTML->execCommand(numero, valore).status());
    }
}

void frmEditor::EseguiCodice(int numero) {
    numero == ui::SourceEdit::FindText ? Trova() : CODE->execute(numero);
}
