#pragma once

// True while the in-game chat line takes the typed characters.
extern bool g_bChatOpen;

// Ties the player's input to the screens: what a typed character, a click or a key does where.
class CScreenFlow
{
public:
    // Once in each pass of the main loop, after the polls: the clicks of the menus and the mouse and keys of
    // play. False when the player has picked Quit.
    bool Step();
    // A typed character: Escape quits, powerup keys spend the oldest letter, fly keys move a free eye in play.
    void OnChar(char cCharacter);
    // The key test at the end of each results frame: space leads on, Escape back to the main menu.
    void OnResultsKeys();

private:
    void Quit();
    void SpendPowerupOn(int iTarget);
    void Fly(char cLowerCase);
};
