#include "Vantrel/Interface/FileSavePanel.h"

#include "Tests/Contract/SavePanelContract.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QFileDialog *dialog()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<QFileDialog *>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}

class FileSavePanelTest : public testing::Test {
protected:
    struct Answer {
        bool isDone = false;
        std::optional<QString> path;
    };

    [[nodiscard]] SavePanel::Panel panelFor(const QString &fileName) const
    {
        return {.title = u"Create Launcher App"_s,
                .message = u"Open “<b>Work</b>” from anywhere."_s,
                .confirmButton = u"Create"_s,
                .folder = folder.path(),
                .fileName = fileName};
    }

    /// The answer may come after the panel is gone.
    static QCoro::Task<> keep(QCoro::Task<std::optional<QString>> asking, std::shared_ptr<Answer> answer)
    {
        answer->path = co_await std::move(asking);
        answer->isDone = true;
    }

    void ask(const QString &fileName)
    {
        answer = std::make_shared<Answer>();
        keep(panel->ask(panelFor(fileName)), answer);
        ASSERT_NE(dialog(), nullptr);
    }

    [[nodiscard]] bool isAnswered() const
    {
        return test::waitUntil([this] { return answer->isDone; });
    }

    test::TemporaryFolder folder;
    std::unique_ptr<FileSavePanel> panel = std::make_unique<FileSavePanel>();
    std::shared_ptr<Answer> answer;
};

TEST_F(FileSavePanelTest, ItSaysWhatItIsFor)
{
    ask(u"Work.app"_s);
    EXPECT_EQ(dialog()->windowTitle(), u"Create Launcher App"_s);
    EXPECT_EQ(dialog()->directory().absolutePath(), folder.path());
    QStringList texts;
    for (const QLabel *label : dialog()->findChildren<QLabel *>()) {
        if (label->textFormat() == Qt::PlainText && label->isVisible())
            texts.append(label->text());
    }
    EXPECT_EQ(texts, QStringList(u"Open “<b>Work</b>” from anywhere."_s));
    EXPECT_EQ(dialog()->labelText(QFileDialog::Accept), u"Create"_s);
    dialog()->reject();
    EXPECT_TRUE(isAnswered());
}

TEST_F(FileSavePanelTest, AFileIsAnsweredWithTheEndingOfABundle)
{
    ask(u"Work.app"_s);
    static_cast<QDialog *>(dialog())->done(QDialog::Accepted);
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer->path, folder.path(u"Work.app"_s));
    ask(u"Work.app"_s);
    dialog()->findChild<QLineEdit *>()->setText(u"Other"_s);
    static_cast<QDialog *>(dialog())->done(QDialog::Accepted);
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer->path, folder.path(u"Other.app"_s));
}

TEST_F(FileSavePanelTest, WithoutANameAFolderIsChosen)
{
    const QString inner = folder.makeFolder(u"Desk top"_s);
    ask({});
    EXPECT_EQ(dialog()->fileMode(), QFileDialog::Directory);
    dialog()->setDirectory(inner);
    static_cast<QDialog *>(dialog())->done(QDialog::Accepted);
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer->path, inner);
}

TEST_F(FileSavePanelTest, CancellingAnswersNothing)
{
    ask(u"Work.app"_s);
    dialog()->reject();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer->path, std::nullopt);
    test::settle();
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(FileSavePanelTest, AskingAgainCancelsTheFirst)
{
    ask(u"Work.app"_s);
    const auto first = answer;
    ask(u"Home.app"_s);
    ASSERT_TRUE(test::waitUntil([&] { return first->isDone; }));
    EXPECT_EQ(first->path, std::nullopt);
    EXPECT_FALSE(answer->isDone);
    dialog()->reject();
    EXPECT_TRUE(isAnswered());
}

TEST_F(FileSavePanelTest, APanelThatGoesWhileItIsOpenAnswersNothing)
{
    ask(u"Work.app"_s);
    panel.reset();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer->path, std::nullopt);
}

class FileSavePanelSystem {
public:
    SavePanel &panel() { return *panel_; }
    static void cancel() { dialog()->reject(); }
    void destroyPanel() { panel_.reset(); }

private:
    std::optional<FileSavePanel> panel_{std::in_place};
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Toolkit, SavePanelContract, FileSavePanelSystem);

} // namespace test
} // namespace vantrel
