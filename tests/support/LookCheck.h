#pragma once

#include <QStringList>

class QWidget;

namespace testing_support {

/// What a user could not see in a window as it stands: texts that are cut, controls outside their place or
/// over one another. A text for each, empty for a window in order.
QStringList faultsOfLayout(QWidget& window);

/// Texts that stand out too little from their ground: 4.5 to 1 where they are on, 3 to 1 where they are off.
QStringList faultsOfContrast(QWidget& window);

/// Controls that the keyboard reaches and that have no name, no object name or no role for assistive
/// programs, or that are smaller than 24 by 24.
QStringList faultsOfAccess(QWidget& window);

/// Mnemonics that two entries of one menu, or two buttons of the window, share.
QStringList faultsOfMnemonics(QWidget& window);

/// Object names of the controls that are on and take the Tab key: in the order in which assistive programs
/// read them, and in that of the key.
QStringList orderRead(QWidget& window);
QStringList orderOfTab(QWidget& window);

/// A text a third longer, with its mnemonic, its colon and its points in place.
QString longer(const QString& text);
/// The same for each label, button and title of a window.
void makeTextsLonger(QWidget& window);
/// The same for each Italian text of a language file.
QByteArray withLongerTexts(const QByteArray& languageFile);

/// Saves a picture of the window in the folder that VESTROLA_SHOTS names, if it names one.
void keepPicture(QWidget& window, const QString& name);

}  // namespace testing_support
