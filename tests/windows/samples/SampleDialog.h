// A test of one sample dialog in one language.
#pragma once

#include "SampleSet.h"

#include "robot/WindowRobot.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

struct Sample
{
    const char* file;
    const char* language;
    bool hasToggle; // a button of it has two captions
};

void PrintTo(const Sample& sample, std::ostream* out);

// Every dialog in every language.
std::vector<Sample> Samples();
std::string NameOfSample(const testing::TestParamInfo<Sample>& sample);

class SampleDialog : public testing::TestWithParam<Sample>
{
protected:
    // Opens the dialog on an empty text and answers as the export does. The steps of the robot must close it, and no
    // message may come.
    int Open();

    const SampleSet samples{GetParam().language};
    robot::Robot robot;
};
