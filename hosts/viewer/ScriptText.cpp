#include "viewer/ScriptText.h"

#include "viewer/CellValue.h"
#include "viewer/PlainText.h"
#include "viewer/ViewerError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

namespace Viewer
{
namespace
{

enum class Wants { Nothing, Word, Text, OnePlace, TwoPlaces, Number, Control, ControlAndText };

struct VerbForm {
    std::u16string_view word;
    Verb verb;
    Wants wants;
};

constexpr std::array<VerbForm, 23> Forms = {{
    {u"mode", Verb::Mode, Wants::Word},
    {u"command", Verb::Command, Wants::Word},
    {u"click", Verb::Click, Wants::OnePlace},
    {u"double-click", Verb::DoubleClick, Wants::OnePlace},
    {u"right-click", Verb::RightClick, Wants::OnePlace},
    {u"move", Verb::Move, Wants::OnePlace},
    {u"drag", Verb::Drag, Wants::TwoPlaces},
    {u"hold", Verb::Hold, Wants::TwoPlaces},
    {u"release", Verb::Release, Wants::OnePlace},
    {u"wheel", Verb::Wheel, Wants::Number},
    {u"key", Verb::Key, Wants::Word},
    {u"type", Verb::Type, Wants::Text},
    {u"save", Verb::Save, Wants::Text},
    {u"load", Verb::Load, Wants::Text},
    {u"picture", Verb::Picture, Wants::Text},
    {u"window", Verb::Window, Wants::Text},
    {u"print", Verb::Print, Wants::Nothing},
    {u"choose", Verb::Choose, Wants::Number},
    {u"page", Verb::Page, Wants::Word},
    {u"set", Verb::Set, Wants::ControlAndText},
    {u"press", Verb::Press, Wants::Control},
    {u"read", Verb::Read, Wants::Control},
    {u"dialog", Verb::Dialog, Wants::Text},
}};

constexpr std::u16string_view Modes[] = {u"select", u"zoom", u"pan", u"cursor", u"measure", u"edit"};
constexpr std::u16string_view Keys[] = {u"home", u"add",    u"subtract", u"left",   u"right", u"up",
                                        u"down", u"delete", u"return",   u"escape", u"space", u"tab"};
constexpr std::u16string_view Pages[] = {u"chart", u"axis", u"curve"};
constexpr std::u16string_view Commands[] = {u"label",          u"zoom-back",
                                            u"reset-zoom",     u"delete-measures",
                                            u"linear-trend",   u"cubic-trend",
                                            u"polynomial",     u"simple-average",
                                            u"linear-average", u"exponential-average",
                                            u"copy-bitmap",    u"triangular-average",
                                            u"copy-metafile",  u"bar",
                                            u"line",           u"pie",
                                            u"pie3d",          u"graph",
                                            u"properties"};

// The buttons that all dialogs have.
constexpr std::array<std::pair<std::u16string_view, int>, 3> Buttons = {
    {{u"ok", 1}, {u"cancel", 2}, {u"apply", 5002}}};

class LineParser
{
public:
    LineParser(std::u16string_view text, std::size_t line) : m_rest(text), m_line(line) {}

    Step Parse()
    {
        const std::u16string_view word = NextWord();
        const auto* form = std::find_if(Forms.begin(), Forms.end(),
                                        [&](const VerbForm& known) { return known.word == word; });
        if (form == Forms.end())
            Refuse(u"unknown step " + Quote(word));
        Step step{form->verb, m_line, {}, {}, 0};
        Read(form->wants, step);
        if (!TrimBlanks(m_rest).empty())
            Refuse(u"too much: " + Quote(TrimBlanks(m_rest)));
        return step;
    }

private:
    void Read(Wants wants, Step& step)
    {
        switch (wants) {
        case Wants::Nothing:
            break;
        case Wants::Word:
            ReadWord(step);
            break;
        case Wants::Text:
            step.text = TrimBlanks(m_rest);
            m_rest = {};
            Need(!step.text.empty());
            break;
        case Wants::OnePlace:
            step.places = {NextPlace()};
            break;
        case Wants::TwoPlaces:
            step.places.push_back(NextPlace());
            step.places.push_back(NextPlace());
            break;
        case Wants::Number:
            step.number = static_cast<int>(NextNumber(NextWord(), 100));
            break;
        case Wants::Control:
            step.number = NextControl();
            break;
        case Wants::ControlAndText:
            step.number = NextControl();
            step.text = TrimBlanks(m_rest); // may be empty: that is what an edit then holds
            m_rest = {};
            break;
        }
    }

    void ReadWord(Step& step)
    {
        const std::u16string_view word = NextWord();
        Need(!word.empty());
        const bool digit = word.front() >= u'0' && word.front() <= u'9';
        if (step.verb == Verb::Command && digit) {
            step.number = static_cast<int>(NextNumber(word, 65535));
            return;
        }
        const auto known = [&](const auto& words) {
            return std::find(std::begin(words), std::end(words), word) != std::end(words);
        };
        const bool found = step.verb == Verb::Mode   ? known(Modes)
                           : step.verb == Verb::Key  ? known(Keys)
                           : step.verb == Verb::Page ? known(Pages)
                                                     : known(Commands);
        if (!found)
            Refuse(u"unknown word " + Quote(word));
        step.text = word;
    }

    int NextControl()
    {
        const std::u16string_view word = NextWord();
        Need(!word.empty());
        for (const auto& [name, number] : Buttons) {
            if (name == word)
                return number;
        }
        const double number = NextNumber(word, 65535);
        if (number < 1)
            Refuse(u"no control: " + Quote(word));
        return static_cast<int>(number);
    }

    Place NextPlace()
    {
        const Coordinate x = NextCoordinate();
        if (x.unit == Coordinate::Unit::OnCurve)
            Refuse(u"only Y can be on a curve");
        return {x, NextCoordinate()};
    }

    Coordinate NextCoordinate()
    {
        constexpr std::u16string_view onCurve = u"on:";
        std::u16string_view word = NextWord();
        Need(!word.empty());
        if (word.starts_with(onCurve)) {
            const double number = NextNumber(word.substr(onCurve.size()), 10000);
            if (number < 1)
                Refuse(u"curves are counted from 1");
            return {Coordinate::Unit::OnCurve, number - 1};
        }
        if (word.ends_with(u'%')) {
            const std::optional<double> part = ParseNumber(word.substr(0, word.size() - 1), false);
            if (!part || !(std::fabs(*part) <= 1000))
                Refuse(u"no place: " + Quote(word));
            return {Coordinate::Unit::Percent, *part};
        }
        return {Coordinate::Unit::Pixels, NextNumber(word, 30000)};
    }

    // A whole number of at most that size.
    double NextNumber(std::u16string_view word, double most) const
    {
        const std::optional<double> number = ParseNumber(word, false);
        if (!number || std::fabs(*number) > most || *number != std::floor(*number))
            Refuse(u"a whole number is wanted, not " + Quote(word));
        return *number;
    }

    std::u16string_view NextWord()
    {
        m_rest = TrimBlanks(m_rest);
        const std::size_t end = m_rest.find_first_of(u" \t");
        const std::u16string_view word = m_rest.substr(0, end);
        m_rest.remove_prefix(word.size());
        return word;
    }

    void Need(bool there) const
    {
        if (!there)
            Refuse(u"something is missing");
    }

    [[noreturn]] void Refuse(std::u16string_view reason) const
    {
        throw Error{ExitCode::BadCommandLine,
                    u"script, line " + ToText(m_line) + u": " + std::u16string(reason)};
    }

    std::u16string_view m_rest;
    std::size_t m_line;
};

} // namespace

std::vector<Step> ParseScript(std::u16string_view text)
{
    std::vector<Step> steps;
    for (std::size_t line = 1; !text.empty(); ++line) {
        const std::size_t end = text.find(u'\n');
        const std::u16string_view content = TrimBlanks(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (!content.empty() && content.front() != u'#')
            steps.push_back(LineParser(content, line).Parse());
    }
    return steps;
}

} // namespace Viewer
