// The dialog that chooses which questions are asked.
#pragma once

void ConfirmationsDialog();
