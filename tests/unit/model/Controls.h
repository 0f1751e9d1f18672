// A control for tests of the records: it has what a test gives it, and writes down what is done to it.
#pragma once

#include "model/ClytControl.h"

#include <map>
#include <memory>
#include <string>

class RecordingControl : public ClytControl
{
public:
    RecordingControl(const CString& controlName, std::string& log)
        : ClytControl(controlName, {}, {}, CString()), m_log(log)
    {
    }

    void SaveState() override { Note("save"); }
    void SetControlFocus() override { Note("focus"); }
    void AddValues(const CString& text, const CString& separators) override { Note("values", text, separators); }
    void SetValue(const CString& newValue) override { Note("set", newValue); }
    CString GetValue() override { return value; }
    int IsChanged() override { return isChanged; }
    void AddItem(const CString& newValue, const CString& display, int hasValue, int place) override
    {
        CString how;
        how.Format("%s,%d%d", display.GetString(), hasValue, place);
        Note("add", newValue, how);
    }
    void ReplaceCurrentItem(const CString& text) override { Note("replace", text); }
    void FillByLibrary() override { Note("fill"); }
    int IsActive() override { return isActive; }
    int HasContent() override { return value.IsEmpty() ? 0 : 1; }
    void Exempt(const char* option) { TakeCommonOption(option); }
    int TakeOption(const char* word) { return TakeCommonOption(word); }

    CString value;
    int isActive = 1;
    int isChanged = 0;

private:
    void Note(const char* what, const char* first = "", const char* second = "")
    {
        m_log +=
            std::string(name.GetString()) + "." + what + "(" + first + (*second != '\0' ? "," : "") + second + ") ";
    }

    std::string& m_log; // outlives the control
};

// Controls by name, with one log.
class Controls
{
public:
    RecordingControl& Add(const char* name, const char* value = "")
    {
        auto& control = m_controls[name];
        control = std::make_unique<RecordingControl>(name, log);
        control->value = value;
        map.SetAt(name, control.get());
        return *control;
    }
    // What was done since the last look.
    std::string TakeLog() { return std::exchange(log, {}); }

    ClytControlMap map;
    std::string log;

private:
    std::map<std::string, std::unique_ptr<RecordingControl>> m_controls;
};
