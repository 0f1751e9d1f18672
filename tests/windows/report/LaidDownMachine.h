// A machine whose facts are all laid down by the test: files, registry, printer and environment.
#pragma once

#include "PrinterFacts.h"
#include "ReportTest.h"

class LaidDownMachine : public ReportTest
{
protected:
    LaidDownMachine();

    // A report on one of its folders, in which what moves from run to run, and from machine to machine, is masked.
    Texts MaskedReport();

    const std::string examined = folder.File("examined");

private:
    void LayFiles();
    void LayDocumentType();
    void LayWordProcessors();
    void LayHardware();

    const LocalPrinter m_printer;
    const DefaultPrinter m_device;
    const EnvironmentVariable m_path;
    const EnvironmentVariable m_temp;
    const EnvironmentVariable m_tmp;
};
