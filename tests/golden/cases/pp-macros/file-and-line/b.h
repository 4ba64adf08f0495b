char *bf = __FILE__; int bl = __LINE__;
