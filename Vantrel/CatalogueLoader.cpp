#include "Vantrel/CatalogueLoader.h"

#include "Vantrel/BrowserSurvey.h"

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
    BrowserSurvey survey = BrowserSurvey::make(workspace, data, reader, bundleIDs);
    catalogue.browsers = std::move(survey.browsers);
    loaded.results = std::move(survey.results);
    catalogue.profiles = withResults(loaded.results, catalogue.browsers, std::move(catalogue.profiles));
    return loaded;
}

} // namespace vantrel
