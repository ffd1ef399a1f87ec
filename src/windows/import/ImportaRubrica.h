// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct ViciniContatti;

/// The command that copies the user's address book into a group of recipients. Nothing of it reaches the
/// user but the question for the group; what cannot be read or inserted is left out.
void ImportaRubrica(const ViciniContatti& vicini);
