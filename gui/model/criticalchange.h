#pragma once

// Asks whether a critical variable's name or value may really change, with
// the model's one question (no parent window, Yes, No and Cancel). True only
// for Yes.
bool confirmCriticalChange();
