message("SKIP   : tst_B::e() before it failed")
message(FATAL_ERROR "FAIL!  : tst_B::f()")
