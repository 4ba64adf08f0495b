int inc_b;
