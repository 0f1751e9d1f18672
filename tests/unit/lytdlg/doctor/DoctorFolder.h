// A deployment that `lytdlg doctor` judges: the samples in a folder of the test, with library files that nothing runs.
#pragma once

#include "CommandRun.h"
#include "LibraryFile.h"

#include "lytdlg/judge/PartnerCalls.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

class DoctorFolder : public TestFolder
{
public:
    // All is well in it, with the program and the libraries in the folder `word`.
    DoctorFolder()
    {
        for (const char* part : {"dialogs", "init"})
            std::filesystem::copy(std::string(LYT_SOURCE_FOLDER) + "/samples/" + part, Path() + "/" + part,
                                  std::filesystem::copy_options::recursive);
        Write("lyt64.dll", LibraryFile(lytdlg::OwnFunctions()));
        Write("word/word.exe", LibraryFile({}));
        Write("word/lytsrc.dll", LibraryFile({"lytTreeStart", "lytTreeNext", "lytParaTreeStart", "lytParaTreeNext"}));
        Write("word/lytdata.dll", LibraryFile(dataFunctions));
        Write("word/LytRes64.dll", LibraryFile({"getVersion"}));
    }

    // What `sample` of the folder holds, with a part of it replaced.
    void Replace(const std::string& sample, const std::string& part, const std::string& by) const
    {
        std::string text = Read(sample);
        ASSERT_NE(text.find(part), std::string::npos) << part;
        Write(sample, text.replace(text.find(part), part.size(), by));
    }
    void Remove(const std::string& name) const { std::filesystem::remove_all(File(name)); }

    // All that is printed, the folder's path left out.
    std::string Output(const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> words = {"doctor", Path(), "--host", File("word/word.exe")};
        words.insert(words.end(), options.begin(), options.end());
        const CommandRun run(words);
        EXPECT_EQ(run.errors, "");
        EXPECT_EQ(run.code, run.output.ends_with("verdict: good\n") ? 0 : 1) << run.output;
        std::string text = run.output;
        for (size_t at = text.find(Path()); at != std::string::npos; at = text.find(Path()))
            text.erase(at, Path().size() + 1);
        return text;
    }
    // The lines that change the verdict, with what to do.
    std::string Findings(const std::vector<std::string>& options = {}) const
    {
        return LinesOf(options, {"wrong", "warning"});
    }
    std::string Notes(const std::vector<std::string>& options = {}) const { return LinesOf(options, {"note"}); }
    std::string GoodLines(const std::vector<std::string>& options = {}) const { return LinesOf(options, {"good"}); }

    static inline const std::vector<std::string> dataFunctions = {"OpenList", "OpenMarked",  "NextItem",
                                                                  "LookUp",   "OpenSymbols", "NextSymbol"};

private:
    std::string LinesOf(const std::vector<std::string>& options, const std::vector<std::string>& verdicts) const
    {
        std::istringstream lines(Output(options));
        std::string chosen;
        bool isChosen = false;
        for (std::string line; std::getline(lines, line);)
        {
            // A way out belongs to the line above it.
            if (!line.starts_with(" "))
                isChosen = std::ranges::find(verdicts, line.substr(0, line.find(' '))) != verdicts.end();
            chosen += isChosen ? line + "\n" : "";
        }
        return chosen;
    }
};
