
#line 1 "a.yc"


int ternary_taken;





int arithmetic;


int negative_is_true;


int integer_ops;


int nested_ternary;
