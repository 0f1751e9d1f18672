// The process-wide fields that more than one room uses. They live from load to unload, have no lock, and are defined
// in exports/Globals.cpp.
#pragma once

#include <afx.h>

// The text that the next dialog scans as its input; also carries a nested dialog's result out of it.
extern CString lytInputKey;
// The group key of the running wizard step.
extern CString lytWizardGroup;
// The unread rest of a comma-separated value of `lyt.ini`.
extern CString lytIniList;
// 1 once a command reached a dialog; the push button, which calls it KeyCommandSeen, lets Return act only then.
extern int lytCommandSeen;
// The number of confirmations of the tree since a property dialog reset it, -1 after one in the wizard.
extern int lytTreeConfirmCount;
// 1 when the last tree dialog was confirmed.
extern int lytTreeResult;
// Makes the entry that was selected when the tree dialog opened the current one again. The tree defines it.
void lytRestoreTreeChoice();
