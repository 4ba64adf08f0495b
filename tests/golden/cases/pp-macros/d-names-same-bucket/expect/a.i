
#line 1 "a.yc"

int AAS_defined;


int BAA_defined;



int AAS_gone;


int BAA_still;

int e = AAS;
