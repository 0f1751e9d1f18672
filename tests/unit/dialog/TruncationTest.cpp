// However early a description ends, reading it gives a failure of a known kind or a dialog.
#include "Form.h"

#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> Samples()
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(LYT_SOURCE_FOLDER "/samples/dialogs"))
    {
        if (entry.path().extension() == ".dlg")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

class TruncatedSample : public testing::TestWithParam<fs::path>
{
protected:
    const TestFolder folder;
};

// True for a dialog, false for a failure of this program or an argument that is missing.
bool OpensOrFails(const std::string& file)
{
    LiveForm form(file.c_str());
    lytInputKey = "S1:area(2,kWh/(m2a))=\"n. a.\"";
    try
    {
        form.Construct();
        form.Confirm();
        return true;
    }
    catch (ClytException* e)
    {
        e->Delete();
    }
    catch (CInvalidArgException* e)
    {
        e->Delete();
    }
    return false;
}

} // namespace

TEST_P(TruncatedSample, EndsInAKnownFailureOrADialog)
{
    const std::string copy = folder.File("cut.dlg");
    fs::copy_file(GetParam(), copy);
    const auto length = static_cast<int>(fs::file_size(copy));
    EXPECT_TRUE(OpensOrFails(copy));
    bool isWhole = true;
    for (int rest = length - 1; rest >= 0; rest -= LYT_TRUNCATION_STEP)
    {
        fs::resize_file(copy, static_cast<uintmax_t>(rest));
        const bool isDialog = OpensOrFails(copy);
        // Once a part of the final word is missing, there is no dialog again.
        EXPECT_TRUE(isWhole || !isDialog) << rest;
        isWhole = isDialog;
    }
    EXPECT_FALSE(isWhole);
    TakeMessages();
    lytInputKey.Empty();
}

INSTANTIATE_TEST_SUITE_P(Samples, TruncatedSample, testing::ValuesIn(Samples()),
                         [](const auto& file) { return file.param.stem().string(); });
