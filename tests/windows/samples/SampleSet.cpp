#include "SampleSet.h"

#include "lyt64.h"

#include "support/Library.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace
{

fs::path SampleDialogs()
{
    return fs::path(ProgramFolder()) / "samples" / "dialogs";
}

} // namespace

SampleSet::SampleSet(const std::string& language)
{
    m_folder.Write("lyt.ini", "[global]\r\nCurrent Language=" + language + "\r\nTreeWidth=460\r\nTreeHeight=510\r\n");
    fs::copy(SampleDialogs(), m_folder.Path(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("x.doc", m_folder.Path().c_str(),
                                                                         m_folder.Path().c_str());
}

SampleSet::~SampleSet()
{
    Call<decltype(FreeGlobalObject)>("FreeGlobalObject")();
}

int SampleSet::Open(const std::string& file, const std::string& text) const
{
    // Every description opens as that of a symbol: what it is called is not looked at.
    fs::copy_file(SampleDialogs() / (file + ".dlg"), fs::path(m_folder.Path()) / "lytInSym.dlg",
                  fs::copy_options::overwrite_existing);
    char result[1025] = "";
    return Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(text.c_str(), result, 1024);
}
