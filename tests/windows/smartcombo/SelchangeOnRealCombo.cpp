// The tests of logic/smartcombo/SelchangeTest.cpp once more, over a real combo box.
#include "RealComboBox.h"
#pragma GCC diagnostic ignored "-Wsubobject-linkage" // the tests are a file of their own elsewhere
#define SMART_COMBO_UNDER_TEST RealComboBox
#include "logic/smartcombo/SelchangeTest.cpp"
