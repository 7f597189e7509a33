#pragma once
#include "platform/native/GlBackBuffer.h"

// For as long as the object lives, vertices are pixels of the back buffer, (0, 0) at its top left, and their z
// is the depth itself, from 0 to 1. The matrices the device had come back when it goes.
class CGlScreenSpace
{
public:
    CGlScreenSpace()
    {
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        glOrtho(0, CGlBackBuffer::WIDTH, CGlBackBuffer::HEIGHT, 0, 0, -1);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glLoadIdentity();
    }
    CGlScreenSpace(const CGlScreenSpace&) = delete;
    CGlScreenSpace& operator=(const CGlScreenSpace&) = delete;
    ~CGlScreenSpace()
    {
        glPopMatrix();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
    }
};
