// SPDX-License-Identifier: MIT
#pragma once

// The window layout between the windows and the settings store.
namespace brolk {

void SaveLayout();
void LoadLayout();
void DefaultLayout();

}  // namespace brolk
