#pragma once

#include "hfm/Session.h"

/// Asks a session every question that the tools may ask, of every dimension and of its first
/// members, and checks what the answers promise of each other. A promise that is broken aborts.
void askEverything(hfm::Session &session);
/// The part of it that concerns security.
void askSecurity(hfm::Security &security);
