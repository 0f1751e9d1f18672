// Files that the library does not find or open because of their names, and those that cannot be read.
#include "lytdlg/doctor/Checks.h"

namespace lytdlg
{

void AddUnreadable(Verdict verdict, const char* about, const std::filesystem::path& file, Diagnosis& diagnosis)
{
    if (IsLocked(file))
        diagnosis.Add(verdict, about, file, "cannot be read, since another program has it open for itself",
                      "end that program, or close the file there");
    else
        diagnosis.Add(verdict, about, file, "cannot be read",
                      "check the name, and give the users the right to read it");
}

void JudgeNames(const Deployment& deployment, Diagnosis& diagnosis)
{
    constexpr const char* aboutNames = "names";
    for (const std::filesystem::path& file : deployment.hiddenEndings)
        diagnosis.Add(Verdict::Warning, aboutNames, file,
                      "is not read, since its name ends with .txt, which Explorer may hide",
                      "rename it to " + file.stem().string());
    for (const std::filesystem::path& file : deployment.tooLong)
        diagnosis.Add({Verdict::Wrong,
                       aboutNames,
                       file.string(),
                       {},
                       "has a longer name than the library can open, with its folders",
                       "move the deployment to a folder with a shorter name",
                       "too long"});
}

} // namespace lytdlg
