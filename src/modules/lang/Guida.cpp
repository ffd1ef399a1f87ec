#include "modules/lang/Guida.h"

#include <QFileInfo>
#include <QUrl>

#include "modules/core/bFunctions.h"
#include "modules/lang/bLANG.h"
#include "platform/system/ProgramFolder.h"

namespace guida {

namespace {

struct Lingua {
    const char16_t* nome;
    const char* codice;
};

/// As LANG.lng names them.
constexpr Lingua lingue[] = {
    {u"Italiano", "it"}, {u"English", "en"}, {u"Español", "es"}, {u"Français", "fr"}, {u"Deutsch", "de"},
};

QString cartella() {
    return sys::helpFolder() + CodiceLingua() + u'/';
}

}  // namespace

QString CodiceLingua() {
    for (const Lingua& lingua : lingue)
        if (bLANG::nomeScelto == QStringView(lingua.nome)) return QLatin1String(lingua.codice);
    return QStringLiteral("it");
}

QString PrimaPagina() {
    return cartella() + QStringLiteral("index.html");
}

QString PaginaDellaFinestra(const QString& nome) {
    const QString pagina = cartella() + QStringLiteral("windows/") + nome + QStringLiteral(".html");
    return !nome.isEmpty() && QFileInfo::exists(pagina) ? pagina : QString();
}

void Apri(const QString& pagina) {
    ApriShell(QUrl::fromLocalFile(pagina).toString());
}

}  // namespace guida
