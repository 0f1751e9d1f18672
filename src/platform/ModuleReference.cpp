#include "ModuleReference.h"

// A program cannot be unloaded from under itself.
ModuleReference::ModuleReference() noexcept = default;
ModuleReference::~ModuleReference() = default;
