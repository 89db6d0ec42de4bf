#include "Platform/LauncherProgram.h"
#include "Platform/OwnPrograms.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A program of its own, so that commands don't load what draws pictures.
class OwnLauncherProgram final : public LauncherProgram {
public:
    [[nodiscard]] PlatformError become(const QStringList &arguments) override
    {
        return becomeProgram(ownProgram(u"vantrel-launcher"_s), arguments);
    }
};

} // namespace

std::unique_ptr<LauncherProgram> LauncherProgram::create()
{
    return std::make_unique<OwnLauncherProgram>();
}

} // namespace vantrel
