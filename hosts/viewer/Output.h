#pragma once
// Text for the person who started the program: to the console or file that the program's output
// goes to, if there is one.

#include <string_view>

namespace Viewer
{

enum class Stream { Output, Error };

// False if nobody would see it.
bool Print(Stream stream, std::u16string_view text);

// Prints, or shows a message box where there is nothing to print to.
void Tell(Stream stream, std::u16string_view text);

} // namespace Viewer
