// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/core/bTheme.h"

#include <array>
#include <cmath>
#include <QApplication>
#include <string_view>
#include <utility>

#include "modules/core/bGlobal.h"
#include "platform/ui/ColorNumber.h"
#include "platform/ui/Contrast.h"

namespace {

struct Rgb {
    std::uint8_t rosso, verde, blu;
};

struct Schema {
    std::u16string_view nome;
    std::array<Rgb, 25> colori;
};

constexpr std::array schemi{
    Schema{u"Classic",
           {{{212, 208, 200}, {255, 255, 255}, {128, 128, 128}, {128, 128, 128}, {128, 128, 128},
             {212, 208, 200}, {246, 244, 243}, {234, 232, 228}, {212, 208, 200}, {245, 244, 242},
             {213, 210, 202}, {212, 213, 216}, {212, 213, 216}, {10, 36, 106},   {249, 248, 247},
             {215, 211, 204}, {249, 248, 247}, {182, 189, 210}, {102, 102, 102}, {212, 213, 216},
             {0, 0, 0},       {166, 166, 166}, {166, 166, 166}, {255, 255, 255}, {128, 128, 128}}}},
    Schema{u"NormalColor",
           {{{196, 218, 250}, {255, 255, 255}, {89, 135, 214},  {3, 56, 147},    {0, 45, 150},
             {158, 190, 245}, {196, 217, 249}, {221, 236, 254}, {74, 122, 201},  {221, 236, 254},
             {129, 169, 226}, {255, 244, 204}, {255, 208, 145}, {0, 0, 128},     {227, 239, 255},
             {135, 173, 228}, {246, 246, 246}, {255, 238, 194}, {0, 45, 150},    {255, 192, 111},
             {0, 0, 0},       {141, 141, 141}, {106, 140, 203}, {241, 249, 255}, {144, 153, 174}}}},
    Schema{u"Metallic",
           {{{243, 243, 247}, {255, 255, 255}, {168, 167, 191}, {112, 111, 145}, {124, 124, 148},
             {215, 215, 229}, {242, 242, 247}, {238, 238, 244}, {162, 162, 181}, {243, 244, 250},
             {153, 151, 181}, {255, 244, 204}, {255, 208, 145}, {75, 75, 111},   {249, 249, 255},
             {159, 157, 185}, {253, 250, 255}, {255, 238, 194}, {124, 124, 148}, {255, 192, 111},
             {0, 0, 0},       {141, 141, 141}, {110, 109, 143}, {255, 255, 255}, {155, 154, 179}}}},
    Schema{u"HomeStead",
           {{{242, 241, 228}, {255, 255, 255}, {175, 192, 130}, {99, 122, 68},   {96, 128, 88},
             {217, 217, 167}, {241, 240, 227}, {243, 242, 231}, {159, 171, 128}, {244, 247, 222},
             {183, 198, 145}, {255, 244, 204}, {255, 208, 145}, {63, 93, 56},    {255, 255, 237},
             {184, 199, 146}, {244, 244, 238}, {255, 238, 194}, {117, 141, 94},  {255, 192, 111},
             {0, 0, 0},       {141, 141, 141}, {96, 128, 88},   {244, 247, 222}, {151, 160, 123}}}},
};

/// By the number of the system colour.
constexpr std::array ruoliDiSistema{
    QPalette::Window,
    QPalette::Window,
    QPalette::Highlight,
    QPalette::Mid,
    QPalette::Window,
    QPalette::Base,
    QPalette::Shadow,
    QPalette::WindowText,
    QPalette::Text,
    QPalette::HighlightedText,
    QPalette::Window,
    QPalette::Window,
    QPalette::Dark,
    QPalette::Highlight,
    QPalette::HighlightedText,
    QPalette::Button,
    QPalette::Mid,
    QPalette::Mid,
    QPalette::ButtonText,
    QPalette::WindowText,
    QPalette::Light,
    QPalette::Shadow,
    QPalette::Midlight,
    QPalette::ToolTipText,
    QPalette::ToolTipBase,
    QPalette::Window,
    QPalette::Link,
    QPalette::Highlight,
    QPalette::Mid,
    QPalette::Highlight,
    QPalette::Window,
};

constexpr std::uint32_t valore(int rosso, int verde, int blu) {
    return static_cast<std::uint32_t>(rosso | (verde << 8) | (blu << 16));
}

void ImpostaTestiDisattivati(QPalette& tavolozza) {
    const QColor testo = misto(20, 0, 120);
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        tavolozza.setColor(QPalette::Disabled, ruolo, testo);
    tavolozza.setColor(QPalette::Disabled, QPalette::Base, mistoSuBianco(0, 110));
}

/// What the desktop asks for: lines as dark as the text, and more contrast for dimmed texts.
void RinforzaContrasto(QPalette& tavolozza) {
    for (const auto ruolo : {QPalette::Mid, QPalette::Dark, QPalette::PlaceholderText})
        tavolozza.setColor(QPalette::All, ruolo, coloreTema(20));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        tavolozza.setColor(QPalette::Disabled, ruolo, misto(20, 0, 190));
}

void ImpostaSelezione(QPalette& tavolozza) {
    for (const auto gruppo : {QPalette::Active, QPalette::Disabled}) {
        tavolozza.setColor(gruppo, QPalette::Highlight, coloreTema(13));
        tavolozza.setColor(gruppo, QPalette::HighlightedText, coloreTema(1));
    }
    tavolozza.setColor(QPalette::Inactive, QPalette::Highlight, misto(13, 0, 90));
    tavolozza.setColor(QPalette::Inactive, QPalette::HighlightedText, coloreTema(20));
}

/// Menus are drawn with dark icons on their highlight.
QPalette tavolozzaMenu() {
    QPalette tavolozza = tavolozzaTema();
    tavolozza.setColor(QPalette::All, QPalette::Highlight, coloreTema(17));
    tavolozza.setColor(QPalette::All, QPalette::HighlightedText, coloreTema(20));
    return tavolozza;
}

QString schemaSostituito;

/// Windows that are shown already are repainted by each change, so an unchanged palette is left alone.
void VestiProgramma() {
    static std::pair<decltype(coloriTema), bool> vestito;
    const std::pair adesso{coloriTema, ui::highContrast()};
    if (std::exchange(vestito, adesso) == adesso) return;
    QApplication::setPalette(tavolozzaTema());
    const QPalette menu = tavolozzaMenu();
    QApplication::setPalette(menu, "QMenu");
    QApplication::setPalette(menu, "QMenuBar");
}

}  // namespace

QString RilevaTema(QWidget*) {
    QString nome = schemaSostituito.isEmpty() ? QStringLiteral("Classic") : schemaSostituito;
    ImpostaColoriTema(nome);
    VestiProgramma();
    return nome;
}

void sostituisciSchema(const QString& nome) {
    schemaSostituito = nome;
}

void ImpostaColoriTema(const QString& nome) {
    for (const Schema& schema : schemi) {
        if (nome != QStringView(schema.nome)) continue;
        for (std::size_t i = 0; i < schema.colori.size(); ++i) {
            const Rgb& rgb = schema.colori[i];
            coloriTema[i] = valore(rgb.rosso, rgb.verde, rgb.blu);
        }
        return;
    }
}

std::uint32_t TraduciColore(std::uint32_t valore) {
    constexpr std::uint32_t nessuno = 0xffffffff;
    constexpr std::uint32_t deiColoriDiSistema = 0x80000000;
    if (valore < 0x03000000) return valore;
    const std::uint32_t numero = valore - deiColoriDiSistema;
    if (valore < deiColoriDiSistema || numero >= ruoliDiSistema.size()) return nessuno;
    return ui::numberOf(QApplication::palette().color(ruoliDiSistema[numero]));
}

std::uint32_t MescolaColori(std::uint32_t colore1, std::uint32_t colore2, int quota) {
    colore1 = TraduciColore(colore1);
    colore2 = TraduciColore(colore2);
    std::uint32_t risultato = 0;
    for (const int spostamento : {0, 8, 16}) {
        const double c1 = (colore1 >> spostamento) & 0xff;
        const double c2 = (colore2 >> spostamento) & 0xff;
        const double misto = (255 - quota) * c2 / 255 + quota * c1 / 255;
        // The rounding mode of the start is "nearest, ties to even"; it is never changed.
        risultato |= static_cast<std::uint32_t>(std::nearbyint(misto)) << spostamento;
    }
    return risultato;
}

QPalette tavolozzaTema() {
    QPalette tavolozza;
    const auto imposta = [&tavolozza](QPalette::ColorRole ruolo, const QColor& colore) {
        tavolozza.setColor(QPalette::All, ruolo, colore);
    };
    imposta(QPalette::Window, coloreTema(0));
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        imposta(ruolo, coloreTema(20));
    imposta(QPalette::Base, coloreTema(1));
    imposta(QPalette::AlternateBase, mistoSuBianco(0, 50));
    imposta(QPalette::Button, coloreTema(7));
    imposta(QPalette::Light, coloreTema(1));
    imposta(QPalette::Midlight, coloreTema(6));
    imposta(QPalette::Mid, coloreTema(2));
    imposta(QPalette::Dark, coloreTema(2).darker(120));
    imposta(QPalette::Shadow, coloreTema(20));
    imposta(QPalette::Link, coloreTema(13));
    imposta(QPalette::LinkVisited, coloreTema(13));
    imposta(QPalette::ToolTipBase, coloreTema(16));
    imposta(QPalette::ToolTipText, coloreTema(20));
    imposta(QPalette::PlaceholderText, misto(20, 1, 150));
    ImpostaSelezione(tavolozza);
    ImpostaTestiDisattivati(tavolozza);
    if (ui::highContrast()) RinforzaContrasto(tavolozza);
    return tavolozza;
}

QColor coloreTema(int indice) {
    return ui::colorOf(coloriTema[indice]);
}

QColor misto(int sopra, int sotto, int quota) {
    return ui::colorOf(MescolaColori(coloriTema[sopra], coloriTema[sotto], quota));
}

QColor mistoSuBianco(int sopra, int quota) {
    return ui::colorOf(MescolaColori(coloriTema[sopra], valore(255, 255, 255), quota));
}
