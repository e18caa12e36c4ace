// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The interfaces have no code in any library, so nothing would be known of them: one function names them all, for the
// tool that describes them.

#include "IDialupUIService.h"
#include "INotify.h"
#include "INotifyService.h"
#include "IPluginContainer.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "PluginGate.h"

void describeInterfaces(IUIPlugin*, ISettingUIPlugin*, INotify*, IQuickLinkPlugin*, INotifyService*, IDialupUIService*,
                        IPluginContainer*, PluginGate*)
{
}
