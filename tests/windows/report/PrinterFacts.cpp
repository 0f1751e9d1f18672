#include "PrinterFacts.h"

#include <gtest/gtest.h>

namespace
{

char driverName[] = "LYT Test Driver";

void AddDriver()
{
    char file[] = "wineps.drv";
    DRIVER_INFO_3A driver = {};
    driver.cVersion = 3;
    driver.pName = driverName;
    driver.pDriverPath = file;
    driver.pDataFile = file;
    driver.pConfigFile = file;
    EXPECT_TRUE(AddPrinterDriverExA(nullptr, 3, static_cast<BYTE*>(static_cast<void*>(&driver)),
                                    APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY))
        << GetLastError();
}

} // namespace

DefaultPrinter::DefaultPrinter(const char* device)
{
    GetProfileStringA("windows", "device", "", m_before, sizeof m_before);
    WriteProfileStringA("windows", "device", device);
}

DefaultPrinter::~DefaultPrinter()
{
    WriteProfileStringA("windows", "device", m_before[0] != '\0' ? m_before : nullptr);
}

LocalPrinter::LocalPrinter(std::string name, DEVMODEA mode) : m_name(std::move(name))
{
    AddDriver();
    char port[] = "LPT1:";
    char processor[] = "winprint";
    char datatype[] = "RAW";
    PRINTER_INFO_2A info = {};
    info.pPrinterName = m_name.data();
    info.pPortName = port;
    info.pDriverName = driverName;
    info.pPrintProcessor = processor;
    info.pDatatype = datatype;
    info.pDevMode = &mode;
    m_handle = AddPrinterA(nullptr, 2, static_cast<BYTE*>(static_cast<void*>(&info)));
    EXPECT_NE(m_handle, nullptr) << m_name << ": " << GetLastError();
}

LocalPrinter::~LocalPrinter()
{
    DeletePrinter(m_handle);
    ClosePrinter(m_handle);
}

DEVMODEA PrinterMode(DWORD fields)
{
    DEVMODEA mode = {};
    mode.dmSize = sizeof mode;
    mode.dmSpecVersion = DM_SPECVERSION;
    mode.dmFields = fields;
    return mode;
}
