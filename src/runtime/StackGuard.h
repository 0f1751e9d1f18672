// The value that stands between a function's buffers and its return address.
#pragma once

// Gives it a value of this load. Nothing that is protected may be running.
void SeedStackGuard();
