#ifdef READY
int ready;
