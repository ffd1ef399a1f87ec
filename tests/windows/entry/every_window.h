// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QFile>
#include <QScreen>
#include <QTest>

#include "modules/import/UltimaImportazione.h"
#include "modules/lang/bLANG.h"
#include "platform/text/Language.h"
#include "platform/ui/Controls.h"
#include "platform/ui/ElementDialog.h"
#include "platform/ui/FindDialog.h"
#include "platform/ui/ImageDialog.h"
#include "platform/ui/LinkDialog.h"
#include "support/LookCheck.h"
#include "windows/accounts/frmAccount.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/message/frmColor.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/griglia_stage.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"
#include "windows/strumenti/frmUltimaImportazione.h"

/// Every window of the program, one after the other, for tests of what all of them show.
namespace testing_support {

inline void writeTo(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

inline QByteArray installedTexts() {
    QFile file(TEST_DATA_DIR "/../../assets/templates/LANG.lng");
    if (!file.open(QIODevice::ReadOnly)) qFatal("no language file");
    return file.readAll();
}

/// The windows over a program folder with groups, recipients and an account, in the installed texts.
struct Windows {
    StoreStage stage;
    bool stretched;

    explicit Windows(bool longTexts = false, const QByteArray& language = "Italiano") : stretched(longTexts) {
        writeTo(stage.folder.path("LANG.lng"),
                stretched ? withLongerTexts(installedTexts()) : installedTexts());
        writeTo(stage.folder.path("LANGz.lng"), language + "\r\n");
        text::setLanguage(bLANG::CodiceLingua());
        stage.folder.addAccount(SampleFolder::loopbackAccount(25));
        stage.addGroup(1, "Rivenditori");
        for (const char* name : {"Alfa S.r.l.", "Beta S.p.A.", "Gamma S.n.c."})
            stage.addRecipient(1, name, "info@esempio.it");
        stage.clickNode("K1");
    }

    ~Windows() { text::setLanguage(QStringLiteral("it")); }

    /// The windows of the menu "Strumenti", which are made for screens of at least 800 points.
    static void eachTool(const std::function<void(QWidget&, const QString&)>& show) {
        if (finestre::Main().screen()->availableSize().width() < 800) return;
        finestre::Prova().Carica();
        show(finestre::Prova(), "frmProva");
        finestre::Controllo().CaricaDati();
        show(finestre::Controllo(), "frmControlloMittente");
        finestre::Esiti().Carica();
        show(finestre::Esiti(), "frmEsiti");
        finestre::UltimaImportazione().Mostra(ultimaImportazione());
        show(finestre::UltimaImportazione(), "frmUltimaImportazione");
    }

    /// Works off what showing or resizing a window has left to do: layouts, and timers that run out at once.
    static void settle() {
        for (int round = 0; round < 4; ++round)
            QCoreApplication::processEvents();
    }

    /// Shows one window after the other and calls `look` with each.
    void each(const std::function<void(QWidget&, const QString&)>& look) {
        const auto show = [&](QWidget& window, const QString& name) {
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            settle();
            look(window, name);
            window.hide();
        };
        const auto showOwn = [&](QWidget& window, const QString& name) {
            // Their texts are in no language file.
            if (stretched) makeTextsLonger(window);
            ui::openAtLeast(window, window.size());
            show(window, name);
        };
        look(finestre::Main(), "frmMain");
        finestre::Invia().SetPrgBar();
        finestre::Invia().CaricaDati();
        show(finestre::Invia(), "frmInvia");
        show(finestre::Account(), "frmAccount");
        finestre::Destinatario().PulisciCampi();
        finestre::Destinatario().lbl->setText("Aggiungi destinatario");
        show(finestre::Destinatario(), "frmDestinatario");
        show(finestre::ImpTXT(), "frmImpTXT");
        show(finestre::ImpDB(), "frmImpDB");
        show(finestre::Scelta(), "frmScelta");
        show(finestre::InfoSu(), "frmInfoSu");
        show(finestre::Splash(), "frmSplash");
        show(finestre::PropBody(), "frmPropBody");
        eachTool(showOwn);
        finestre::Editor().NuovoMessaggio();
        show(finestre::Editor(), "frmEditor");
        frmColor colours(*finestre::Editor().DHTML, finestre::Editor().Commands());
        showOwn(colours, "frmColor");
        ui::FindDialog find(&finestre::Main(), [](const QString&, bool, bool) { return false; });
        showOwn(find, "FindDialog");
        ui::LinkDialog link(&finestre::Main(), {"https://www.esempio.it"}, true,
                            {{"Ragione sociale", ":::rgs:::"}});
        showOwn(link, "LinkDialog");
        ui::ImageDialog image(&finestre::Main(), {});
        showOwn(image, "ImageDialog");
        ui::ElementDialog element(&finestre::Main(), {{"td", {{"width", "120"}}}, {"table", {}}});
        showOwn(element, "ElementDialog");
    }
};

}  // namespace testing_support
