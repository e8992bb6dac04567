// Base of the tests of one dialog: the recording host, the scripted user, and the module's resources in the chain.
#pragma once

#include "tests/support/DialogDriver.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/UserScript.h"

#include <gtest/gtest.h>

// Makes the dialogs' templates found by number.
void AttachDialogModule();

class DialogTest : public testing::Test {
  protected:
    DialogTest() { AttachDialogModule(); }

    RecordingHost m_host;
    UserScript m_user;
};
