char var shared[];
char var _private[];
char var sized[].resize[10, 5%];
static int hidden;
int counter;
