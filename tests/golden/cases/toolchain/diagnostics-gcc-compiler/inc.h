/* shared declarations */
int counter;
int broken = undefined_name;
