// Calls of the exports with arguments at random, good and bad. A buffer that is overrun raises a std::runtime_error.
#pragma once

#include "support/Dice.h"

void ShowSymbol(Dice& dice);
void ShowPhrase(Dice& dice);
void ShowCondition(Dice& dice);
void ShowRepetition(Dice& dice);
void LeadThroughWizard(Dice& dice);
// The browser, the entries without a window, now and then the wizard.
void UseCatalogue(Dice& dice);
