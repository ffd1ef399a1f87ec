#pragma once

/// The mouse pointer over all windows. Whatever was set before, and how often, the next call replaces it.

/// The hourglass: something takes its time.
void PuntatoreAttesa();

/// Back to what each window shows by itself.
void PuntatorePredefinito();
