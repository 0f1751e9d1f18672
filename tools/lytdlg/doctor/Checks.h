// The checks of a deployment, a source for each kind of thing. Each reports what it observed, good or bad.
#pragma once

#include "lytdlg/doctor/Configuration.h"
#include "lytdlg/doctor/Deployment.h"
#include "lytdlg/doctor/Diagnosis.h"
#include "lytdlg/judge/Description.h"

#include <list>

namespace lytdlg
{

// The file of the library, its bits and functions, and the program that is to load it.
void JudgeLibrary(const Deployment& deployment, Diagnosis& diagnosis);
void JudgeHost(const Host& host, Diagnosis& diagnosis);
// `lyt.ini`: the language with its file, and the window of the catalogue.
void JudgeConfiguration(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis);
// The log, at the level that is set: it must be possible to write it beside the document.
void JudgeLog(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis);
// The texts that the library asks for by itself, in each language.
void JudgeTexts(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis);
// The descriptions that the library opens by itself, and all that `check` finds in any.
void JudgeDialogs(const Deployment& deployment, const std::list<Description>& descriptions, Diagnosis& diagnosis);
// The fonts that `lyt.ini` names are installed, as far as this machine tells.
void JudgeFonts(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis);
// Files that are not found because of their names.
void JudgeNames(const Deployment& deployment, Diagnosis& diagnosis);
// The libraries that the library and the descriptions call. Gives the files that are loaded.
std::vector<std::filesystem::path> JudgePartners(const Deployment& deployment,
                                                 const std::list<Description>& descriptions, Diagnosis& diagnosis);
// Files that are write-protected, or marked as downloaded: the files of the deployment and the partners.
void JudgeMarks(const Deployment& deployment, const std::vector<std::filesystem::path>& partners, Diagnosis& diagnosis);

// A file that cannot be read: somebody has it open, or the users may not.
void AddUnreadable(Verdict verdict, const char* about, const std::filesystem::path& file, Diagnosis& diagnosis);

// The descriptions of the deployment that can be read, in the order of their names.
std::list<Description> ReadDescriptions(const Deployment& deployment);

} // namespace lytdlg
