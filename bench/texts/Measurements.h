// What texts-bench measures; each prints its lines.
#pragma once

// A thousand messages to the log against a plain loop that opens, appends and closes.
void MeasureLog();
// Registry trees of several sizes, against a plain loop over the same keys.
void MeasureRegistryDump();
