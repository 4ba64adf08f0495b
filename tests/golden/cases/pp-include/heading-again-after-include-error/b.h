int b;
#bogus3
