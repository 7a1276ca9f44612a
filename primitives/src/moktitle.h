// moktitle.h: which columns of the result table belong to functions and their parameters?
#ifndef MOKTITLE_H
#define MOKTITLE_H

// Cells of the title line, written to g_cstrm.
void mokFuncTitleToCStream();
void mokParmsTitleToCStream();

// Makes the session write these titles in place of the plain ones. True.
bool mokRegTitle();

#endif
