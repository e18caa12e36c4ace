// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkAttributes.h"

const LinkAttributes::Attribute LinkAttributes::all[count] = {{"id", &QuickLinkRecord::id},
                                                              {"name", &QuickLinkRecord::name},
                                                              {"type", &QuickLinkRecord::type},
                                                              {"url", &QuickLinkRecord::url},
                                                              {"para", &QuickLinkRecord::para},
                                                              {"startconnect", &QuickLinkRecord::startconnect},
                                                              {"startmobile", &QuickLinkRecord::startmobile},
                                                              {"delete", &QuickLinkRecord::delete_},
                                                              {"edit", &QuickLinkRecord::edit},
                                                              {"visible", &QuickLinkRecord::visible}};
