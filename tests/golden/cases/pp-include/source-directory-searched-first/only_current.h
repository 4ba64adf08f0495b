int cur;
