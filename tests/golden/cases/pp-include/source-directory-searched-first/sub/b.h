int sub_b;
