#pragma once

#include "Vantrel/CatalogueLoader.h"

#include <QString>

namespace vantrel {

class Output;

/// What a browser's failure means to a person, and what to do about it.
[[nodiscard]] QString problemText(const QString &browserName, const ProfileDiscoveryError &error);

/// Says what was in the way of making a catalogue, a message each. True when a browser could not be read.
bool reportProblems(const LoadedCatalogue &loaded, const QString &savedStatePath, Output &output);

} // namespace vantrel
