#pragma once

#include "support/FakeHfm.h"

/// A session on a fake application.
std::shared_ptr<hfm::Session> makeFakeSession(std::shared_ptr<FakeApplication> application);
