int cur_b;
