#pragma once

#include <QString>

/// The folders of the selected recipients with their counts, as a list for the eyes: "Soci 19, Nuovo gruppo
/// 997"; those that no way from the root reaches count as "cartelle perdute". The largest come first, and
/// after ten the rest is put together. Empty where nobody is selected, and where it cannot be read.
QString CartelleSelezionate();
