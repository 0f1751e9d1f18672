// Makes the control of a type word of the layout.
#pragma once

#include "model/ClytControl.h"

#include <memory>

// What a layout statement says, in window units and with the label ready to be shown.
struct ClytControlRequest
{
    const CString& type;
    const CString& name;
    ClytPosition position;
    ClytSize size;
    const CString& label;
};

// Null for a word that names no control.
[[nodiscard]] std::unique_ptr<ClytControl> lytMakeControl(const ClytControlRequest& request);
