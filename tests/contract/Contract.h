#pragma once

#include "contract/ClientUnderTest.h"

/// Checks everything that a client promises; takes the arguments of a QtTest program and returns
/// the number of tests that failed.
int checkContract(ClientUnderTest &client, int argc, char **argv);
