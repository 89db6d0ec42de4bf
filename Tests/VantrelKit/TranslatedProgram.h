#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include <array>
#include <functional>
#include <string>

namespace vantrel::test {

/// A program whose texts are translated by a function, for as long as it lives.
class TranslatedProgram {
public:
    using Translation = std::function<QString(const QString &text)>;

    explicit TranslatedProgram(Translation translation) : translator_(std::move(translation))
    {
        QCoreApplication::installTranslator(&translator_);
    }

    ~TranslatedProgram() { QCoreApplication::removeTranslator(&translator_); }
    Q_DISABLE_COPY_MOVE(TranslatedProgram)

private:
    class Translator : public QTranslator {
    public:
        explicit Translator(Translation translation) : translation_(std::move(translation)) {}

        [[nodiscard]] bool isEmpty() const override { return false; }

        QString translate(const char * /*context*/, const char *text, const char * /*meaning*/,
                          int /*count*/) const override
        {
            return translation_(QString::fromUtf8(text));
        }

    private:
        Translation translation_;
    };

    int argumentCount_ = 1;
    std::string name_ = "vantrel";
    std::array<char *, 2> arguments_{name_.data(), nullptr};
    QCoreApplication application_{argumentCount_, arguments_.data()};
    Translator translator_;
};

} // namespace vantrel::test
