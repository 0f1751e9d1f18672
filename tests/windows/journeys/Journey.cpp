#include "Journey.h"

#include "lyt64.h"

#include "support/Library.h"

namespace
{

constexpr const char* commonTexts =
    "[Buttons]\n001=OK\n002=Cancel\n"
    "[TEXTS]\nTITLE=Journey\nPRESS=Press me\nAGAIN=Once more\nLABEL=A label\n"
    "[MsgBox]\nMUST=Fill the field\nCLASH=These two clash\n"
    "[Dialog_Error]\n200=takes no value\n201=has no value\n202=no window ''\n"
    "204=no tokens\n205=bad begin\n206=failed ''\n207=cannot open ''\n209=cannot close ''\n"
    "210=open quote\n212=line '' is wrong\n213=no version\n214=no layout\n215=no begin\n"
    "216=no values\n217=missing ''\n222=choose another\n232=no function ''\n"
    "233=no library ''\n234=at the end\n235=at the top\n236=bad default ''\n238=the text 238\n"
    "240=resolution\n241=brackets\n242=the text 242\n245=unknown ''\n246=output failed\n"
    "247=no action ''\n248=the text 248\n250=no slash\n251=no library name ''\n254=too long ''\n";

}

Journey::Journey()
{
    m_folder.Write("dlg\\lang\\Test.nls", commonTexts);
    m_folder.Write("init\\lyt.ini", "[global]\nCurrent Language=Test\n");
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")(
        m_folder.File("doc.rtf").c_str(), m_folder.File("dlg").c_str(), m_folder.File("init").c_str());
}

void Journey::Texts(const std::string& sections)
{
    m_folder.Write("dlg\\lang\\Test.nls", commonTexts + sections);
}

void Journey::Describe(const std::string& fileName, const std::string& description)
{
    m_folder.Write("dlg\\" + fileName, description);
}

HWND Journey::Control(size_t index)
{
    return robot::ChildAt(robot::ActiveDialog(), index);
}

JourneyResult Journey::Symbol(const std::string& key, int size)
{
    GuardedBuffer result(size, "before");
    const int code =
        Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(key.c_str(), result.Data(), result.Size());
    return Finish(code, result.Text(), "");
}

JourneyResult Journey::Phrase(const std::string& key, int size)
{
    GuardedBuffer result(size, "before");
    const int code =
        Call<decltype(lytPhrasePropertyDialog)>("lytPhrasePropertyDialog")(key.c_str(), result.Data(), result.Size());
    return Finish(code, result.Text(), "");
}

JourneyResult Journey::Group(int kind, const std::string& key, int firstSize, int secondSize)
{
    GuardedBuffer first(firstSize, "before");
    GuardedBuffer second(secondSize, "before");
    const int code = Call<decltype(lytGroupPropertyDialog)>("lytGroupPropertyDialog")(
        kind, key.c_str(), first.Data(), first.Size(), second.Data(), second.Size());
    return Finish(code, first.Text(), second.Text());
}

JourneyResult Journey::Finish(int code, const std::string& first, const std::string& second)
{
    return {code, first, second, m_robot.Messages(), m_robot.Log(), m_robot.Done()};
}

std::string Description(const Sections& sections)
{
    return "$VERSION 1\n" + sections.text + sections.begin + sections.layout + "End Dialog\n$VALUES\n" +
           sections.values + "$DEPENDANCES\n" + sections.dependances + "$EVALUATION, x\n" + sections.evaluation +
           "$INPUT\n" + sections.input + "$OUTPUT\n" + sections.output + "$END\n";
}
