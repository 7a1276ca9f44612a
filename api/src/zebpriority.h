// zebpriority.h: at what priority does a measurement run?
//
// Only root may change it; for anybody else, and where the system refuses,
// both functions leave the process as it is.
#ifndef ZEBPRIORITY_H
#define ZEBPRIORITY_H

// Saves the present scheduling state and takes on level 1 high (real time), 2 normal, 3 low. Level 0 changes
// nothing and forgets what was saved.
void zebSetPriority(int level);

// Back to what zebSetPriority saved, once.
void zebResetPriority();

#endif
