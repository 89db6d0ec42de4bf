#include "Vantrel/Interface/Settings/AboutSettings.h"

#include "Vantrel/Interface/Settings/PictureView.h"
#include "Vantrel/Pictures/Symbols.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr double iconSide = 6;
constexpr double largeText = 2;

QLabel *centered(const QString &text)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

AboutSettings::AboutSettings(const QString &version, const QString &build, QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(
        new PictureView(iconSide, [](int pixels) { return drawnImage(u"app.kestrune.Vantrel"_s, pixels); }), 0,
        Qt::AlignHCenter);
    QLabel *name = centered(u"Vantrel"_s);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * largeText);
    name->setFont(font);
    layout->addWidget(name);
    //: In the settings. First: the version, as 1.2; second: the build's number.
    layout->addWidget(centered(tr("Version %1 (%2)").arg(version, build)));
    //: The program in one line.
    layout->addWidget(centered(tr("Every browser profile, one click away.")));
    layout->addStretch();
}

} // namespace vantrel
