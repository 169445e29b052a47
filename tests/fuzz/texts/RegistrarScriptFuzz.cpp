// Registrar scripts: replacement and parsing end, and an escaped text is one word again.

#include "Input.h"

#include "framework/component/RegistrarScript.h"
#include "framework/component/RegistrarWords.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    FuzzedDataProvider input(pData, nSize);
    const std::u16string text = RestOf(input);

    RegistrarScript::Replacements replacements;
    replacements.Add(u"MODULE", text.substr(0, 40));
    if (const auto expanded = RegistrarScript::Expand(text, replacements))
        (void)RegistrarScript::Parse(*expanded);
    (void)RegistrarScript::Parse(text);
    (void)RegistrarScript::IsProtected(text);
    (void)RegistrarScript::NumberOf(text);
    (void)RegistrarScript::BytesOf(text);

    std::u16string word = text.substr(0, text.find(u'\0'));
    RegistrarScript::Words words(u"'" + RegistrarScript::EscapeSingleQuotes(word) + u"'");
    Demand(words.Peek() != nullptr && words.Peek()->quoted && words.Peek()->text == word);
    return 0;
}
