// What a terminal has changed on the cells since they were painted last: rows
// that moved, and cells to paint after the move.
#pragma once

#include <vector>

#include "console/cell.h"

class TerminalDamage {
 public:
  TerminalDamage(int columns, int rows);
  // A screen of another size is all painted, so that nothing is owed any more.
  void SetSize(int newColumns, int newRows);

  void Changed(const CellRect& block);
  // The rows of the block moved by lines, downwards if negative.
  void Scrolled(const CellRect& block, int lines);

  bool IsEmpty() const { return isEmpty; }

  // The move that the picture owes the cells: lines is 0 if there is none.
  struct Move {
    CellRect block;
    int lines = 0;
  };
  const Move& OwedMove() const { return move; }
  // What is to be painted once the move is made, from the top down.
  std::vector<CellRect> Blocks() const;
  void Clear();

 private:
  // Columns of a row that are to be painted; nothing if right is below left.
  struct Span {
    int left, right;
  };

  void AddSpan(int y, int left, int right);
  void AddRows(const CellRect& block);
  void MoveSpans(const CellRect& block, int lines);

  int columns;
  std::vector<Span> rows;
  Move move;
  bool isEmpty = true;
};
