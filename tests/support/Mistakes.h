// The mistakes that a build with checks does not survive. Without checks most of them go unnoticed.
#pragma once

namespace mistakes
{

void WritePastABlock();
void ReadAReleasedBlock();
void ReleaseABlockTwice();
void OverflowASignedInteger();
void IndexPastTheEndOfAVector();
void CutANumberThatNoIntegerHolds();

} // namespace mistakes
