#include "Platform/Linux/Processes/BrowserProcessesThread.h"

#include "Tests/Platform/Linux/Processes/ProcessesFixture.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Folders that are asked for on another thread only.
class DataBeside final : public BrowserData {
public:
    explicit DataBeside(const BrowserData &data) : data_(data) {}

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override
    {
        EXPECT_NE(QThread::currentThread(), QCoreApplication::instance()->thread());
        return data_.dataFolders(bundleID);
    }

private:
    const BrowserData &data_;
};

class BrowserProcessesThreadTest : public test::ProcessesFixture {
protected:
    void watchAll()
    {
        beside_->watch({test::chrome, test::brave}, [this](const QString &bundleID, bool isRunning) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            reports_.append(bundleID + (isRunning ? u" runs"_s : u""_s));
        });
        // Answered once the watch has begun.
        EXPECT_FALSE(beside_->isRunning(test::unknownBrowser));
    }

    QStringList reports_;
    DataBeside dataBeside_{data_};
    std::optional<BrowserProcessesThread> beside_{std::in_place, dataBeside_, test::noBus(),
                                                  SingletonContext{test::hostName, folder_.path(u"runtime"_s)}, log_};
};

TEST_F(BrowserProcessesThreadTest, AnswersAsWhatItRunsDoes)
{
    EXPECT_FALSE(beside_->isRunning(test::chrome));
    const auto chrome = startChrome();
    EXPECT_TRUE(beside_->isRunning(test::chrome));
    EXPECT_FALSE(beside_->isRunning(test::brave));
    chrome->close();
    EXPECT_FALSE(beside_->isRunning(test::chrome));
}

TEST_F(BrowserProcessesThreadTest, EndsAreToldOnTheMainThread)
{
    const auto chrome = startChrome();
    watchAll();
    chrome->close();
    EXPECT_EQ(reports_, QStringList()) << "Before the event loop runs.";
    EXPECT_TRUE(test::waitUntil([this] { return !reports_.isEmpty(); }));
    EXPECT_EQ(reports_, QStringList(test::chrome));
}

TEST_F(BrowserProcessesThreadTest, NothingIsToldOnceItIsGone)
{
    const auto chrome = startChrome();
    watchAll();
    chrome->close();
    beside_.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(reports_, QStringList());
}

TEST_F(BrowserProcessesThreadTest, MayEndAtOnce)
{
    beside_.reset();
    EXPECT_EQ(reports_, QStringList());
}

} // namespace
} // namespace vantrel
