// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QStringList>

class QWidget;

namespace testing_support {

/// What a user cannot see in a window in its present state: texts that are cut, controls outside their place
/// or over one another. A text for each, empty for a window in order.
QStringList faultsOfLayout(QWidget& window);

/// Texts with too little contrast to their background: below 4.5 to 1 when enabled, 3 to 1 when disabled.
QStringList faultsOfContrast(QWidget& window);

/// Controls that the keyboard reaches and that have no name, no object name or no role for assistive
/// programs, or that are smaller than 24 by 24.
QStringList faultsOfAccess(QWidget& window);

/// Controls, by their object names, that assistive programs call otherwise than is wanted; each with its
/// name.
QStringList otherNames(const QWidget& window, const QHash<QString, QString>& wanted);

/// Mnemonics that two entries of one menu, or two buttons of the window, share.
QStringList faultsOfMnemonics(QWidget& window);

/// Object names of the enabled controls that take the Tab key: in the order in which assistive programs
/// read them, and in that of the key.
QStringList orderRead(QWidget& window);
QStringList orderOfTab(QWidget& window);

/// A text made a third longer, with its mnemonic, colon and dots in place.
QString longer(const QString& text);
/// The same for each label, button and title of a window.
void makeTextsLonger(QWidget& window);
/// The same for each Italian text of a language file.
QByteArray withLongerTexts(const QByteArray& languageFile);

/// Saves a picture of the window in the folder that VESTROLA_SHOTS names, if it names one.
void keepPicture(QWidget& window, const QString& name);

}  // namespace testing_support
