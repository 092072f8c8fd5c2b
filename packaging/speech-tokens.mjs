// speech-tokens.mjs VOCABULARY: writes the recogniser's token table, a line "base64(bytes) id" for
// each token. The word-start mark stands for a space and <0xNN> for that byte.
import { pathToFileURL } from 'node:url';

const { default: tokenizer } = await import(pathToFileURL(process.argv[2]));

function bytesOf(token) {
    const byte = /^<0x([0-9A-F]{2})>$/.exec(token);
    return byte ? Buffer.from(byte[1], 'hex') : Buffer.from(token.replaceAll('▁', ' '));
}

const lines = tokenizer.vocabById.map((token, id) => `${bytesOf(token).toString('base64')} ${id}\n`);
process.stdout.write(lines.join(''));
