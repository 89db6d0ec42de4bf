#include "Tests/Contract/FolderAccessContract.h"
#include "Tests/Contract/SavePanelContract.h"
#include "Tests/Fakes/FakeFolderAccess.h"
#include "Tests/Fakes/FakeSavePanel.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

/// Whoever says nothing to the fakes cancels.
class FakePanels {
public:
    SavePanel &panel() { return *panel_; }
    void destroyPanel() { panel_.reset(); }
    FolderAccess &access() { return access_; }
    static void cancel() {}

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
    std::optional<test::FakeSavePanel> panel_{std::in_place};
    test::FakeFolderAccess access_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, SavePanelContract, FakePanels);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FolderAccessContract, FakePanels);

} // namespace test
} // namespace vantrel
