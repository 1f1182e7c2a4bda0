#include "core/shell/characters.h"

#include <algorithm>

namespace ShellCharacters {

bool isName(const QString &text)
{
    return !text.isEmpty() && !text.at(0).isDigit() &&
           std::all_of(text.cbegin(), text.cend(), isNameChar);
}

} // namespace ShellCharacters
