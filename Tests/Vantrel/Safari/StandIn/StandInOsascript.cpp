#include "Tests/Vantrel/Safari/StandIn/Actor.h"

#include <unistd.h>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vantrel::test;

/// What tests run in place of osascript: `SCENE -e SCRIPT`. Plays the Safari of the scene.
namespace {

using Kind = Scene::Trouble::Kind;

int fail(const QString &text)
{
    std::fputs(QByteArray(text.toUtf8() + "\n").constData(), stderr);
    return 1;
}

int print(const QByteArray &output)
{
    std::fwrite(output.constData(), 1, static_cast<size_t>(output.size()), stdout);
    return 0;
}

QByteArray appendix(const std::optional<Scene::Trouble> &trouble)
{
    constexpr qsizetype tenMebibytes = qsizetype{10} * 1024 * 1024;
    if (trouble && trouble->kind == Kind::flood)
        return QByteArray(tenMebibytes, 'x') + '\n';
    if (trouble && trouble->kind == Kind::garbage)
        return "\xff\xfe caf\xc3\n";
    return {};
}

int play(Scene &scene, const QString &script, const std::optional<Scene::Trouble> &trouble)
{
    const auto parsed = AppleScript::parse(script);
    if (!parsed)
        return fail(u"syntax error: A string doesn't end. (-2741)"_s);
    QByteArray output;
    for (const AppleScript::Statement &statement : parsed->statements) {
        const auto result = Actor(scene).perform(statement);
        if (!result)
            return fail(result.error());
        for (const QString &item : *result)
            output += item.toUtf8() + '\n';
    }
    return print(parsed->isList ? output + appendix(trouble) : QByteArray("\n"));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4 || QByteArrayView(argv[2]) != "-e")
        return fail(u"usage: SCENE -e SCRIPT"_s);
    const QString path = QString::fromLocal8Bit(argv[1]);
    const QString script = QString::fromUtf8(argv[3]);
    Scene scene = Scene::read(path);
    scene.scripts.append(script);
    const auto trouble = scene.takeTrouble(script);
    scene.write(path);
    if (trouble && trouble->kind == Kind::hang) {
        while (true)
            pause();
    }
    if (trouble && trouble->kind == Kind::error)
        return fail(trouble->text);
    if (trouble && trouble->kind == Kind::silence)
        return 0;
    const int status = play(scene, script, trouble);
    scene.write(path);
    return status;
}
