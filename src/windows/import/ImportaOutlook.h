// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct ViciniContatti;

/// The command that copies the contacts of Microsoft Outlook's default folder into a group of recipients.
/// Nothing of it reaches the user but the question for the group. Values go in as they are: a contact with a
/// single quote in one of them is left out.
void ImportaOutlook(const ViciniContatti& vicini);
