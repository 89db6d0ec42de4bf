#pragma once

#include <QChar>

namespace vantrel {

/// The character that a byte stands for in the encoding NEXTSTEP, in which old property lists number characters. U+FFFD
/// for the two bytes that stand for none.
[[nodiscard]] QChar nextStepCharacter(unsigned char byte);

} // namespace vantrel
