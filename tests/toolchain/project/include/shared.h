/* What main.yc and words.yc share. */
count_words(char text[]) int count;
