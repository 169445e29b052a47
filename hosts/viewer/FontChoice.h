#pragma once
// Faces for texts in any script.

#include <string>
#include <string_view>

namespace Viewer
{

// The first of the usual faces of this machine that has a glyph for every character; the first one
// of all, if none has.
[[nodiscard]] std::u16string FaceFor(std::u16string_view text);

} // namespace Viewer
