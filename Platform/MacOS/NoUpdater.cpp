#include "Platform/MacOS/UpdaterFactory.h"

namespace vantrel {

std::unique_ptr<Updater> makeUpdater()
{
    return nullptr;
}

} // namespace vantrel
