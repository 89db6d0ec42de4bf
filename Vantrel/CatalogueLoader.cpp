#include "Vantrel/CatalogueLoader.h"

#include "Vantrel/InstalledBrowsers.h"

namespace vantrel {

LoadedCatalogue loadCatalogue(const Workspace &workspace, const BrowserData &data, const ProfileReader &reader,
                              const QString &savedStatePath, const QStringList &bundleIDs)
{
    LoadedCatalogue loaded;
    ProfileCatalogue &catalogue = loaded.catalogue;
    if (auto saved = SavedState::read(savedStatePath)) {
        catalogue.profiles = std::move(saved->profiles);
        catalogue.hidden = std::move(saved->hidden);
        catalogue.customNames = std::move(saved->customNames);
    } else {
        loaded.savedStateError = saved.error();
    }
    catalogue.browsers = installedBrowsers(workspace, bundleIDs);
    loaded.results = discoverBrowsers(reader, data, catalogue.browsers);
    catalogue.profiles = withResults(loaded.results, catalogue.browsers, std::move(catalogue.profiles));
    return loaded;
}

} // namespace vantrel
